// SPDX-License-Identifier: MIT

#pragma once

class wxSizer;
class wxWindow;

namespace columnimport {

/// Makes lower and narrower what `sizer` holds of `dialog` as far as the screen has no room for it,
/// so that the options and the buttons are in view: both lists lose height down to five rows, then
/// the preview loses lines; the match list and the preview lose width.
void fitToScreen(wxWindow &dialog, wxSizer &sizer);

} // namespace columnimport
