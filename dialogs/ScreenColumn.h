// SPDX-License-Identifier: MIT

#pragma once

#include <wx/sizer.h>

namespace columnimport {

/// What a dialog holds, from the top to the bottom. In a frame that is wider than the screen, what
/// stands at the right is in view all the same.
class ScreenColumn : public wxBoxSizer {
public:
    explicit ScreenColumn(const wxWindow &dialog);

    void RepositionChildren(const wxSize &minSize) override;

private:
    int m_room;
};

} // namespace columnimport
