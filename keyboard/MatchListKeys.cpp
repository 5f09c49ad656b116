// SPDX-License-Identifier: MIT

#include "keyboard/listKeys.h"

#include "dragdrop/ListCtrlSource.h"
#include "dragdrop/controls.h"

#include <algorithm>

namespace columnimport {

MatchListKeys::MatchListKeys(ListCtrlSource &list) : m_list(list), m_paste(list.changes()) {
    list.Bind(wxEVT_KEY_DOWN, &MatchListKeys::onKeyDown, this);
    list.Bind(wxEVT_CHAR_HOOK, &MatchListKeys::onReturn, this);
    list.Bind(wxEVT_CHAR, &MatchListKeys::onCharacter, this);
}

// As in any list, an arrow key alone clears the marks, with Shift it marks from the anchor, and
// with Control it keeps the marks.
void MatchListKeys::moveCurrentRow(long row, const wxKeyEvent &key) {
    if (m_list.GetItemCount() == 0) {
        return;
    }
    row = std::clamp<long>(row, 0, m_list.GetItemCount() - 1);
    if (key.ShiftDown()) {
        if (m_list.keyAnchor() < 0) {
            m_list.setKeyAnchor(std::max<long>(m_list.currentRow(), 0));
        }
        m_list.clearMarkedRows();
        m_list.markRows(m_list.keyAnchor(), row);
    } else if (!key.ControlDown()) {
        m_list.clearMarkedRows();
        m_list.setKeyAnchor(row);
    }
    m_list.moveTo(row);
    showCurrentRow();
}

void MatchListKeys::showCurrentRow() {
    m_list.clearHoverRows();
    if (m_list.currentRow() >= 0) {
        m_list.hoverOver(m_list.currentRow());
    }
}

void MatchListKeys::markCurrentRow(bool alone) {
    const long row = m_list.currentRow();
    if (row < 0) {
        return;
    }
    m_list.clearHoverRows();
    if (alone) {
        m_list.clearMarkedRows();
    }
    m_list.markRows(row, row);
    m_list.setKeyAnchor(row);
}

std::optional<long> MatchListKeys::targetOf(int key) const {
    const long row = m_list.currentRow();
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

// Applies to the rows that are chosen now, even if the change has to wait.
bool MatchListKeys::edit(const wxKeyEvent &key) {
    const ListCtrlSource::Rows rows = m_list.chosenRows();
    const int code = key.GetKeyCode();
    if (code == WXK_DELETE || code == WXK_NUMPAD_DELETE) {
        m_list.clearMatches(rows);
    } else if (code == 'C' && key.ControlDown()) {
        m_list.changes().run([this, row = m_list.currentRow()] {
            if (row >= 0) {
                copyName(m_list.names(), m_list.GetItemText(row, matchColumn));
            }
        });
    } else if (code == 'V' && key.ControlDown()) {
        m_paste.start([this, rows](const wxString &text) {
            m_list.write(rows, m_list.names().textOfForeign(text, ShownNames::clipboard));
        });
    } else {
        return false;
    }
    return true;
}

void MatchListKeys::onKeyDown(wxKeyEvent &event) {
    const std::optional<long> target = targetOf(event.GetKeyCode());
    if (!event.AltDown() && edit(event)) {
        return;
    }
    if (target) {
        moveCurrentRow(*target, event);
    } else if (event.GetKeyCode() == WXK_SPACE && !event.AltDown()) {
        markCurrentRow(!event.ControlDown());
    } else {
        event.Skip();
    }
}

// The control or the dialog would take Return before its key event arrives.
void MatchListKeys::onReturn(wxKeyEvent &event) {
    if (event.GetKeyCode() != WXK_RETURN && event.GetKeyCode() != WXK_NUMPAD_ENTER) {
        event.Skip();
    } else if (event.ControlDown()) {
        m_list.confirm(m_list.chosenRows());
        m_list.changes().run([this] { m_list.goToNextGuess(m_list.currentRow()); });
    } else {
        pressOkSoon(m_list);
    }
}

// Otherwise the control selects the row that begins with the typed character.
void MatchListKeys::onCharacter(wxKeyEvent &event) {
    event.Skip(event.HasModifiers() || event.GetUnicodeKey() < WXK_SPACE);
    if (event.GetKeyCode() == WXK_SPACE && event.AltDown()) {
        // The window manager takes Alt+Space; a control that gets it nevertheless selects a row.
        m_list.CallAfter([this] { showCurrentRow(); });
    }
}

} // namespace columnimport
