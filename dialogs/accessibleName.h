// SPDX-License-Identifier: MIT

#pragma once

class wxString;
class wxWindow;

namespace columnimport {

/// Gives `control` the name by which a screen reader tells it from others. Each platform has a file
/// of its own for it.
void setAccessibleName(wxWindow &control, const wxString &name);

/// Has a screen reader read out what `control` says whenever it is shown.
void announceWhenShown(wxWindow &control);

} // namespace columnimport
