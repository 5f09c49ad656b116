// SPDX-License-Identifier: MIT

#pragma once

#include <wx/gdicmn.h>

class wxWindow;

namespace columnimport {

/// How large the layout is. All its figures are pixels where fonts are laid out at 96 dots an inch,
/// and there each stands to the pixel. Where a person has fonts made larger or smaller, all of them
/// follow, so that the dialog is the same picture in another size.
///
///     Scale scale(*this); // fonts at 144 dots an inch
///     scale(10) == 15
///     scale(wxSize(250, 450)) == wxSize(375, 675)
class Scale {
public:
    /// The scale on the screen of `window`. Each platform has a file of its own for it.
    explicit Scale(const wxWindow &window);

    int operator()(int pixels) const;
    wxSize operator()(const wxSize &pixels) const;

    bool isUsual() const { return m_ratio == 1; }

private:
    double m_ratio;
};

} // namespace columnimport
