// SPDX-License-Identifier: MIT

#pragma once

#include <wx/sizer.h>

namespace columnimport {

/// The content of a dialog, from top to bottom. If the frame is wider than the screen, the items at
/// the right edge stay in view.
class VisibleColumn : public wxBoxSizer {
public:
    explicit VisibleColumn(const wxWindow &dialog);

    void RepositionChildren(const wxSize &minSize) override;

private:
    int m_room;
};

/// Shrinks the items of `sizer` if the screen has no room for them below and beside the place of
/// `dialog`, so that the options and buttons are in view: both lists lose height down to five rows,
/// then the preview loses lines; the match list and the preview lose width.
void fitToScreen(wxWindow &dialog, wxSizer &sizer);

} // namespace columnimport
