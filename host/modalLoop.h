// SPDX-License-Identifier: MIT

#pragma once

class wxDialog;
class wxSize;

namespace columnimport {

// Each platform has a file of its own for these.

/// Gives `dialog` the size that a host asked for, or the nearest that the platform allows.
void resize(wxDialog &dialog, const wxSize &size);

/// Runs `dialog` modally at its present size and position, and returns its result code. The host's
/// own event loops run on afterwards as before, even if the dialog throws.
int showModal(wxDialog &dialog);

/// Whether `dialog` still has its window. On some platforms the host destroys it together with its
/// own window.
bool hasWindow(const wxDialog &dialog);

} // namespace columnimport
