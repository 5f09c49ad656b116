// SPDX-License-Identifier: MIT

#pragma once

#include <cmath>

#include <wx/gdicmn.h>
#include <wx/sizer.h>

class wxWindow;

namespace columnimport {

/// The scale of the layout. All its figures are pixels at 96 dots per inch, the usual resolution of
/// fonts. The whole layout follows a person's larger or smaller fonts.
///
///     Scale scale(*this); // fonts at 144 dots per inch
///     scale(10) == 15
///     scale(wxSize(250, 450)) == wxSize(375, 675)
class Scale {
public:
    /// The scale on the screen of `window`. Each platform has a file of its own for it.
    explicit Scale(const wxWindow &window);

    int operator()(int pixels) const { return static_cast<int>(std::lround(m_ratio * pixels)); }
    wxSize operator()(const wxSize &pixels) const { return {(*this)(pixels.x), (*this)(pixels.y)}; }

    bool isUsual() const { return m_ratio == 1; }

private:
    double m_ratio;
};

/// The size of a frame from the position of `dialog` to the end of the screen's work area. Each
/// platform has a file of its own for this function and the next one.
wxSize frameRoom(const wxWindow &dialog);

/// The size of the content of such a frame. The dialog need not have been shown yet.
wxSize contentRoom(const wxWindow &dialog);

/// The content of a dialog, from top to bottom. If the frame is wider than the screen, the items at
/// the right edge stay in view.
class VisibleColumn : public wxBoxSizer {
public:
    explicit VisibleColumn(const wxWindow &dialog);

    void RepositionChildren(const wxSize &minSize) override;

private:
    int m_room;
};

/// Shrinks the items of `sizer` if the screen has too little room for them at the position of
/// `dialog`, so that the options and buttons stay in view: both lists lose height, down to five
/// rows, then the preview loses lines; the match list and the preview lose width.
void fitToScreen(wxWindow &dialog, wxSizer &sizer);

} // namespace columnimport
