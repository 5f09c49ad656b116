// SPDX-License-Identifier: MIT

#pragma once

/// The key symbol of X11 and Wayland for a key in the toolkit's numbers. Characters have the same
/// number in both.
unsigned keysymOf(int key);
