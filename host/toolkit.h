// SPDX-License-Identifier: MIT

#pragma once

namespace columnimport {

// Each platform has a file of its own for these.

/// Sets the toolkit up for the process. Repeated calls only replace the application object that an
/// earlier one made; one that the host made itself, being written with the toolkit, stays. Without
/// a display it does nothing.
void setUpToolkit();

/// Whether the toolkit stands and has a display.
bool isToolkitSetUp();

} // namespace columnimport
