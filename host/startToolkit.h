// SPDX-License-Identifier: MIT

#pragma once

namespace columnimport {

// Each platform has a file of its own for these.

/// Whether there is a display for the toolkit.
bool hasDisplay();

/// Starts the toolkit with the present application object, or adds one user if it runs already. It
/// is never shut down.
void startToolkit();

} // namespace columnimport
