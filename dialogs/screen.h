// SPDX-License-Identifier: MIT

#pragma once

#include <cmath>

#include <wx/gdicmn.h>

class wxWindow;

namespace columnimport {

/// The scale of the layout. All its figures are pixels at 96 dots an inch, the usual resolution of
/// fonts. If a person has larger or smaller fonts, the whole layout follows.
///
///     Scale scale(*this); // fonts at 144 dots an inch
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

// Each platform has a file of its own for these.

/// The size of a frame that reaches from the place of `dialog` to the end of the screen's work
/// area.
wxSize frameRoom(const wxWindow &dialog);

/// The size of the content of such a frame. The dialog need not have been shown yet.
wxSize contentRoom(const wxWindow &dialog);

} // namespace columnimport
