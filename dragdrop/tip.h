// SPDX-License-Identifier: MIT

#pragma once

class wxString;
class wxWindow;

namespace columnimport {

/// Gives `list` this tooltip; an empty one takes it away.
void setTip(wxWindow &list, const wxString &tip);

/// Gives `list` a tooltip with the whole of `name` if that is wider than the `room` in which the
/// list shows it, in pixels, and else takes the tooltip away.
void tipWhereCut(wxWindow &list, const wxString &name, int room);

} // namespace columnimport
