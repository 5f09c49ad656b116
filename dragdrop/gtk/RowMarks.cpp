#include "RowMarks.h"

#include <algorithm>

#include <wx/listctrl.h>
#include <wx/settings.h>

namespace columnimport {

namespace {

/// The list's background with some of the selection's colour in it: clearly another than the full
/// selection colour of the row under the pointer, and the text keeps the contrast that the theme
/// gives it, be the theme light or dark.
wxColour markColour(const wxListCtrl &list) {
    const wxColour selection = wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT);
    const wxColour background = list.GetBackgroundColour();
    constexpr double share = 0.35;
    return wxColour(wxColour::AlphaBlend(selection.Red(), background.Red(), share),
                    wxColour::AlphaBlend(selection.Green(), background.Green(), share),
                    wxColour::AlphaBlend(selection.Blue(), background.Blue(), share));
}

} // namespace

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
        m_list.SetItemBackgroundColour(row,
                                       marked ? markColour(m_list) : m_list.GetBackgroundColour());
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
    return found == m_marked.end() ? -1 : static_cast<long>(found - m_marked.begin());
}

} // namespace columnimport
