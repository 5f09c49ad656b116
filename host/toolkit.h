// SPDX-License-Identifier: MIT

#pragma once

namespace columnimport {

/// Sets the toolkit up for the process. A later call only replaces the application object of an
/// earlier one, unless a window of the toolkit exists. Does nothing without a display, or if the
/// host has an application object of its own: a host that is written with the toolkit starts and
/// ends it itself.
void setUpToolkit();

/// Whether the toolkit is set up.
bool isToolkitSetUp();

// What setting it up takes. Each platform has a file of its own for these.

/// Whether there is a display for the toolkit.
bool hasDisplay();

/// Starts the toolkit with the present application object, or counts one more user of it. It is
/// never shut down.
void startToolkit();

} // namespace columnimport
