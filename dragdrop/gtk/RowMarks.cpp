// SPDX-License-Identifier: MIT

#include "RowMarks.h"

#include "markColours.h"

#include <algorithm>

#include <wx/listctrl.h>
#include <wx/settings.h>

namespace columnimport {

RowMarks::RowMarks(wxListCtrl &list) : m_list(list) {
    list.Bind(wxEVT_LIST_DELETE_ALL_ITEMS, [this](wxListEvent &event) {
        m_marked.clear();
        event.Skip();
    });
}

void RowMarks::set(long row, bool marked) {
    const auto index = static_cast<std::size_t>(row);
    if (index >= m_marked.size()) {
        m_marked.resize(index + 1, false);
    }
    if (m_marked[index] != marked) {
        m_marked[index] = marked;
        const MarkColours colours =
            marked ? markColours(m_list.GetBackgroundColour(),
                                 wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT))
                   : MarkColours{m_list.GetBackgroundColour(), m_list.GetForegroundColour()};
        m_list.SetItemBackgroundColour(row, colours.ground);
        m_list.SetItemTextColour(row, colours.text);
        if (m_changed) {
            m_changed(row);
        }
    }
}

bool RowMarks::isMarked(long row) const {
    const auto index = static_cast<std::size_t>(row);
    return index < m_marked.size() && m_marked[index];
}

long RowMarks::next(long row) const {
    const auto found =
        std::find(m_marked.begin() + std::min<long>(row + 1, static_cast<long>(m_marked.size())),
                  m_marked.end(), true);
    return found == m_marked.end() ? wxNOT_FOUND : static_cast<long>(found - m_marked.begin());
}

} // namespace columnimport
