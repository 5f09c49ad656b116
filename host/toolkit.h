// SPDX-License-Identifier: MIT

#pragma once

namespace columnimport {

/// Sets the toolkit up for the process. A repeated call replaces the application object that an
/// earlier one made, unless a window of the toolkit exists. It does nothing without a display, and
/// nothing if the host has an application object of its own: a host that is written with the
/// toolkit starts and ends it itself.
void setUpToolkit();

/// Whether the toolkit is set up.
bool isToolkitSetUp();

} // namespace columnimport
