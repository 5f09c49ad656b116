// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include <wx/listctrl.h>

namespace columnimport {

/// Which rows of a list control are marked. Here the native control has a state for this: it shows
/// the marks, and drops them with the rows.
class RowMarks {
public:
    explicit RowMarks(wxListCtrl &list) : m_list(list) {}

    void set(long row, bool marked) {
        m_list.SetItemState(row, marked ? wxLIST_STATE_DROPHILITED : 0, wxLIST_STATE_DROPHILITED);
    }
    bool isMarked(long row) const {
        return m_list.GetItemState(row, wxLIST_STATE_DROPHILITED) != 0;
    }

    /// The marked rows, in ascending order.
    std::vector<long> rows() const {
        std::vector<long> rows;
        long row = wxNOT_FOUND;
        while ((row = m_list.GetNextItem(row, wxLIST_NEXT_ALL, wxLIST_STATE_DROPHILITED)) >= 0) {
            rows.push_back(row);
        }
        return rows;
    }

private:
    wxListCtrl &m_list;
};

} // namespace columnimport
