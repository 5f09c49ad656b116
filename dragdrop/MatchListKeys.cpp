// SPDX-License-Identifier: MIT

#include "dragdrop/MatchListKeys.h"

#include "dragdrop/ListCtrlSource.h"
#include "dragdrop/clipboard.h"
#include "dragdrop/controls.h"
#include "names/notUsed.h"

#include <algorithm>

namespace columnimport {

MatchListKeys::MatchListKeys(ListCtrlSource &list) : m_list(list) {
    list.Bind(wxEVT_KEY_DOWN, &MatchListKeys::onKeyDown, this);
    list.Bind(wxEVT_CHAR, &MatchListKeys::onCharacter, this);
}

void MatchListKeys::startFrom(long row) {
    setCurrentRow(row);
    m_anchor = row;
}

long MatchListKeys::currentRow() const {
    return m_list.GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_FOCUSED);
}

void MatchListKeys::setCurrentRow(long row) {
    m_list.SetItemState(row, wxLIST_STATE_FOCUSED, wxLIST_STATE_FOCUSED);
}

// As in any list: an arrow key alone leaves no mark behind, with Shift it marks from where the way
// began, and with Control it marks nothing.
void MatchListKeys::moveCurrentRow(long row, const wxKeyEvent &key) {
    if (m_list.GetItemCount() == 0) {
        return;
    }
    row = std::clamp<long>(row, 0, m_list.GetItemCount() - 1);
    if (key.ShiftDown()) {
        if (m_anchor < 0 || m_anchor >= m_list.GetItemCount()) {
            m_anchor = std::max<long>(currentRow(), 0);
        }
        m_list.clearMarkedRows();
        m_list.markRows(m_anchor, row);
    } else if (!key.ControlDown()) {
        m_list.clearMarkedRows();
        m_anchor = row;
    }
    setCurrentRow(row);
    m_list.EnsureVisible(row);
    m_list.clearHoverRows();
    m_list.hoverOver(row);
}

void MatchListKeys::markCurrentRow(bool alone) {
    const long row = currentRow();
    if (row < 0) {
        return;
    }
    m_list.clearHoverRows();
    if (alone) {
        m_list.clearMarkedRows();
    }
    m_list.markRows(row, row);
    m_anchor = row;
}

void MatchListKeys::setChosenMatchTexts(const wxString &text) {
    if (m_list.countMarkedRows() > 0) {
        m_list.setMarkedMatchTexts(text);
    } else if (currentRow() >= 0) {
        m_list.setMatchText(currentRow(), text);
    }
}

void MatchListKeys::onKeyDown(wxKeyEvent &event) {
    const long row = currentRow();
    wxString text;
    switch (event.GetKeyCode()) {
    case WXK_UP:
        moveCurrentRow(row - 1, event);
        break;
    case WXK_DOWN:
        moveCurrentRow(row + 1, event);
        break;
    case WXK_PAGEUP:
        moveCurrentRow(row - m_list.GetCountPerPage(), event);
        break;
    case WXK_PAGEDOWN:
        moveCurrentRow(row + m_list.GetCountPerPage(), event);
        break;
    case WXK_HOME:
        moveCurrentRow(0, event);
        break;
    case WXK_END:
        moveCurrentRow(m_list.GetItemCount() - 1, event);
        break;
    case WXK_SPACE:
        markCurrentRow(!event.ControlDown());
        break;
    case WXK_DELETE:
    case WXK_NUMPAD_DELETE:
        setChosenMatchTexts(notUsed);
        break;
    case WXK_RETURN:
    case WXK_NUMPAD_ENTER: {
        // The control would keep it for itself.
        wxCommandEvent ok(wxEVT_BUTTON, wxID_OK);
        wxGetTopLevelParent(&m_list)->GetEventHandler()->AddPendingEvent(ok);
        break;
    }
    case 'C':
        if (event.ControlDown() && row >= 0) {
            copyText(m_list.GetItemText(row, matchColumn));
        }
        break;
    case 'V':
        if (event.ControlDown() && pasteText(text)) {
            setChosenMatchTexts(m_list.names().textOfForeign(text));
        }
        break;
    default:
        event.Skip();
    }
}

// The control would look for the row that begins with what is typed, and select it.
void MatchListKeys::onCharacter(wxKeyEvent &event) {
    event.Skip(event.HasModifiers() || event.GetUnicodeKey() < WXK_SPACE);
}

} // namespace columnimport
