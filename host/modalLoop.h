// SPDX-License-Identifier: MIT

#pragma once

class wxDialog;
class wxSize;

namespace columnimport {

// Each platform has a file of its own for these.

/// Gives `dialog` the size that a host asked for, as closely as the platform can.
void resize(wxDialog &dialog, const wxSize &size);

/// Runs `dialog` modally at its size and position, and returns its return code. The host's own
/// event loops go on afterwards as before, even if the dialog throws.
int showModal(wxDialog &dialog);

/// Whether `dialog` still has its window. On some platforms it is destroyed with its owner, which
/// the host may have done during the run.
bool hasWindow(const wxDialog &dialog);

} // namespace columnimport
