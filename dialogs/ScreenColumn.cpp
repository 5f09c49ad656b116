// SPDX-License-Identifier: MIT

#include "dialogs/ScreenColumn.h"

#include "dialogs/screenRoom.h"

#include <algorithm>

namespace columnimport {

ScreenColumn::ScreenColumn(const wxWindow &dialog)
    : wxBoxSizer(wxVERTICAL), m_room(contentRoom(dialog).x) {}

void ScreenColumn::RepositionChildren(const wxSize &minSize) {
    const wxSize whole = m_size;
    m_size.x = std::min(whole.x, std::max(m_room, minSize.x));
    wxBoxSizer::RepositionChildren(minSize);
    m_size = whole;
}

} // namespace columnimport
