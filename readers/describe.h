// SPDX-License-Identifier: MIT

#pragma once

class wxString;
class wxWindow;

namespace columnimport {

// Descriptions of single controls for screen readers. Each platform has a file of its own.

/// Gives `control` its name for screen readers. If it is the list of file columns, its entries that
/// are in use are named with "in use".
void setAccessibleName(wxWindow &control, const wxString &name);

/// Lets screen readers announce the text of `control` each time it is shown.
void announceWhenShown(wxWindow &control);

} // namespace columnimport
