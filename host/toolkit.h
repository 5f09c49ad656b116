// SPDX-License-Identifier: MIT

#pragma once

namespace columnimport {

/// Sets the toolkit up for the process. A repeated call only replaces the application object that
/// an earlier one made, and nothing while a window of the toolkit stands. Where the host's own
/// application object stands it does nothing: a host that is written with the toolkit starts and
/// ends it itself. Without a display it does nothing either.
void setUpToolkit();

/// Whether the toolkit stands.
bool isToolkitSetUp();

} // namespace columnimport
