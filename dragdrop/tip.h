// SPDX-License-Identifier: MIT

#pragma once

class wxString;
class wxWindow;

namespace columnimport {

/// Sets the tooltip of `list`; an empty one removes it.
void setTip(wxWindow &list, const wxString &tip);

/// Sets the whole `name` as the tooltip if it is wider than the `room` of the list, in pixels; else
/// removes the tooltip.
void tipWhereCut(wxWindow &list, const wxString &name, int room);

} // namespace columnimport
