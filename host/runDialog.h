// SPDX-License-Identifier: MIT

#pragma once

class wxImportCSVDialog;
class wxSize;

namespace columnimport {

/// Builds `dialog`, shows it at 100, 100 with a frame of the given size and returns whether it
/// ended with OK.
bool runDialog(wxImportCSVDialog &dialog, const wxSize &size);

} // namespace columnimport
