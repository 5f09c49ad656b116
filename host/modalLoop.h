// SPDX-License-Identifier: MIT

#pragma once

class wxDialog;
class wxSize;

namespace columnimport {

// Each platform has a file of its own for these.

/// Gives `dialog` the size that a host asked for, as near to it as the platform can come.
void resize(wxDialog &dialog, const wxSize &size);

/// Runs `dialog` modally at the size and position that it was given, and returns the code that it
/// ended with. The host's own event loops are running afterwards as they were before, also if an
/// exception comes out of the dialog.
int showModal(wxDialog &dialog);

/// Whether `dialog` still has its window. On some platforms it is destroyed with its owner, which the
/// host may have done during the run.
bool hasWindow(const wxDialog &dialog);

} // namespace columnimport
