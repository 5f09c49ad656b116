// SPDX-License-Identifier: MIT

#include "RowMarks.h"

#include <wx/listctrl.h>

namespace columnimport {

void RowMarks::set(long row, bool marked) {
    m_list.SetItemState(row, marked ? wxLIST_STATE_DROPHILITED : 0, wxLIST_STATE_DROPHILITED);
}

bool RowMarks::isMarked(long row) const {
    return m_list.GetItemState(row, wxLIST_STATE_DROPHILITED) == wxLIST_STATE_DROPHILITED;
}

long RowMarks::next(long row) const {
    return m_list.GetNextItem(row, wxLIST_NEXT_ALL, wxLIST_STATE_DROPHILITED);
}

} // namespace columnimport
