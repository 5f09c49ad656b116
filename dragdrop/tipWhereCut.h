// SPDX-License-Identifier: MIT

#pragma once

class wxString;
class wxWindow;

namespace columnimport {

/// Gives `list` a tooltip with the whole of `name` if that is wider than `room` pixels, in which
/// the list shows it, and else takes the tooltip away.
void tipWhereCut(wxWindow &list, const wxString &name, int room);

} // namespace columnimport
