// SPDX-License-Identifier: MIT

#pragma once

namespace columnimport {

/// Sets the toolkit up for the process. A later call only replaces the application object, unless a
/// window of the toolkit exists. Does nothing without a display, or if the application object is
/// the host's: a host that is written with the toolkit starts and ends it itself.
void setUpToolkit();

/// Whether the toolkit is set up.
bool isToolkitSetUp();

// Each platform has a file of its own for these two, which `setUpToolkit` calls.

/// Whether the toolkit has a display.
bool hasDisplay();

/// Starts the toolkit with the present application object, or adds one to its users. The toolkit is
/// never shut down.
void startToolkit();

} // namespace columnimport
