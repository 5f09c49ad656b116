// SPDX-License-Identifier: MIT

#include "dragdrop/MatchListKeys.h"

#include "dragdrop/ListCtrlSource.h"
#include "dragdrop/clipboard.h"
#include "dragdrop/controls.h"

#include <algorithm>

namespace columnimport {

MatchListKeys::MatchListKeys(ListCtrlSource &list) : m_list(list) {
    list.Bind(wxEVT_KEY_DOWN, &MatchListKeys::onKeyDown, this);
    list.Bind(wxEVT_CHAR, &MatchListKeys::onCharacter, this);
    // What is on its way was meant for the rows that are about to go.
    list.Bind(wxEVT_LIST_DELETE_ALL_ITEMS, [this](wxListEvent &event) {
        m_paste.forget();
        event.Skip();
    });
}

void MatchListKeys::startFrom(long row) {
    setCurrentRow(row);
    m_anchor = row;
}

void MatchListKeys::goTo(long row) {
    startFrom(row);
    m_list.EnsureVisible(row);
    m_list.clearHoverRows();
    m_list.hoverOver(row);
}

long MatchListKeys::currentRow() const {
    return m_list.GetNextItem(wxNOT_FOUND, wxLIST_NEXT_ALL, wxLIST_STATE_FOCUSED);
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
    showCurrentRow();
}

void MatchListKeys::showCurrentRow() {
    m_list.clearHoverRows();
    if (currentRow() >= 0) {
        m_list.hoverOver(currentRow());
    }
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

std::vector<long> MatchListKeys::chosenRows() const {
    std::vector<long> rows = m_list.markedRows();
    if (rows.empty() && currentRow() >= 0) {
        rows.push_back(currentRow());
    }
    return rows;
}

void MatchListKeys::copy(long row) {
    if (row >= 0) {
        copyText(m_list.GetItemText(row, matchColumn));
    }
}

void MatchListKeys::paste(const std::vector<long> &rows) {
    m_paste.start([this, rows](const wxString &text) {
        m_list.setMatchTexts(rows, m_list.names().textOfForeign(text));
    });
}

// The control would keep Return for itself.
void MatchListKeys::pressOk() {
    wxCommandEvent ok(wxEVT_BUTTON, wxID_OK);
    wxGetTopLevelParent(&m_list)->GetEventHandler()->AddPendingEvent(ok);
}

std::optional<long> MatchListKeys::targetOf(int key) const {
    const long row = currentRow();
    switch (key) {
    case WXK_UP:
        return row - 1;
    case WXK_DOWN:
        return row + 1;
    case WXK_PAGEUP:
        return row - m_list.GetCountPerPage();
    case WXK_PAGEDOWN:
        return row + m_list.GetCountPerPage();
    case WXK_HOME:
        return 0;
    case WXK_END:
        return m_list.GetItemCount();
    default:
        return std::nullopt;
    }
}

std::function<void()> MatchListKeys::workOf(const wxKeyEvent &key) {
    switch (key.GetKeyCode()) {
    case WXK_DELETE:
    case WXK_NUMPAD_DELETE:
        return [this, rows = chosenRows()] {
            m_list.setMatchTexts(rows, m_list.names().textOf(NameBook::noColumn));
        };
    case WXK_RETURN:
    case WXK_NUMPAD_ENTER:
        return [this] { pressOk(); };
    case 'C':
        if (key.ControlDown()) {
            return [this, row = currentRow()] { copy(row); };
        }
        return nullptr;
    case 'V':
        if (key.ControlDown()) {
            return [this, rows = chosenRows()] { paste(rows); };
        }
        return nullptr;
    default:
        return nullptr;
    }
}

void MatchListKeys::onKeyDown(wxKeyEvent &event) {
    const std::function<void()> work = event.AltDown() ? nullptr : workOf(event);
    const std::optional<long> target = targetOf(event.GetKeyCode());
    if (work) {
        m_paste.inTurn(work);
    } else if (target) {
        moveCurrentRow(*target, event);
    } else if (event.GetKeyCode() == WXK_SPACE && !event.AltDown()) {
        markCurrentRow(!event.ControlDown());
    } else {
        event.Skip();
    }
}

// The control would look for the row that begins with what is typed, and select it.
void MatchListKeys::onCharacter(wxKeyEvent &event) {
    event.Skip(event.HasModifiers() || event.GetUnicodeKey() < WXK_SPACE);
    if (event.GetKeyCode() == WXK_SPACE && event.AltDown()) {
        // It is the window manager's; a control that gets it selects or deselects the current row.
        m_list.CallAfter([this] { showCurrentRow(); });
    }
}

} // namespace columnimport
