// SPDX-License-Identifier: MIT

#pragma once

/// The key symbol that X11 and Wayland have for a key in the toolkit's numbers; characters have the
/// same in both.
unsigned keysymOf(int key);
