// SPDX-License-Identifier: MIT

#include "dragdrop/ListCtrlSource.h"

#include "dragdrop/controls.h"
#include "languages/translated.h"

#include <algorithm>

namespace columnimport {

wxString rowsText(const wxString &first, std::size_t count) {
    if (count == 1) {
        return first;
    }
    const auto rows = static_cast<unsigned>(count);
    return wxString::Format(translated("%s (%u row)", "%s (%u rows)", rows), first, rows);
}

ListCtrlSource::ListCtrlSource(wxWindow *parent, wxWindowID id, const wxPoint &position,
                               const wxSize &size)
    : wxListCtrl(parent, id, position, size, wxLC_REPORT), m_marks(*this) {
    Bind(wxEVT_LEFT_DOWN, &ListCtrlSource::onLeftDown, this, wxID_ANY, wxID_ANY);
    Bind(wxEVT_LEFT_UP, &ListCtrlSource::onLeftUp, this, wxID_ANY, wxID_ANY);
    Bind(wxEVT_MOTION, &ListCtrlSource::onMouseMove, this, wxID_ANY, wxID_ANY);
    Bind(wxEVT_LEFT_DCLICK, [this](wxMouseEvent &event) {
        m_secondClick.pressAgain(static_cast<int>(rowAt(event.GetPosition())));
        onLeftDown(event);
    });
    ignoreOtherButtons(*this);
}

// Members bound to the delete event must outlive the rows, so the rows go first.
ListCtrlSource::~ListCtrlSource() {
    DeleteAllItems();
}

void ListCtrlSource::showRows(const std::vector<RowMatch> &matches,
                              const wxArrayString &applications, ShownNames &names) {
    DeleteAllItems();
    m_names = &names;
    m_origins.clear();
    for (const RowMatch &match : matches) {
        const auto row = static_cast<long>(m_origins.size());
        m_origins.push_back(match);
        InsertItem(row, match.text);
        SetItem(row, matchColumn + 1, applications[m_origins.size() - 1]);
    }
}

std::string ListCtrlSource::getMatchText(int row) const {
    return m_names->bytesOf(GetItemText(row, matchColumn));
}

SourceMatch ListCtrlSource::getMatch(int row) const {
    const RowMatch match = rowMatch(row);
    if (match.text == m_names->textOf(ShownNames::noColumn)) {
        return {};
    }
    SourceMatch source{match, m_names->bytesOf(match.text)};
    source.position = m_names->positionOf(match.text);
    return source;
}

RowMatch ListCtrlSource::rowMatch(long row) const {
    return {m_origins[static_cast<std::size_t>(row)], GetItemText(row, matchColumn)};
}

std::vector<RowMatch> ListCtrlSource::rowMatches() const {
    std::vector<RowMatch> matches;
    for (long row = 0; row < GetItemCount(); ++row) {
        matches.push_back(rowMatch(row));
    }
    return matches;
}

std::unordered_set<std::int32_t> ListCtrlSource::usedColumns() const {
    std::unordered_set<std::int32_t> used;
    for (long row = 0; row < GetItemCount(); ++row) {
        used.insert(m_names->positionOf(GetItemText(row, matchColumn)));
    }
    return used;
}

bool ListCtrlSource::isUnused(long row) const {
    return m_names->isUnused(GetItemText(row, matchColumn));
}

bool ListCtrlSource::isGuess(long row) const {
    return m_origins[static_cast<std::size_t>(row)].origin == MatchOrigin::similar;
}

wxString ListCtrlSource::inWords(long row) const {
    const wxString words = GetItemText(row, matchColumn + 1) + ": " + GetItemText(row, matchColumn);
    return isGuess(row) ? wxString::Format(translated("%s, a guess"), words) : words;
}

void ListCtrlSource::applyMatchFont(long row) {
    // Some list controls return an invalid font for a row whose font was never set.
    wxFont font = GetItemFont(row);
    if (!font.IsOk()) {
        font = GetFont();
    }
    font.SetWeight(isUnused(row) ? wxFONTWEIGHT_BOLD : wxFONTWEIGHT_NORMAL);
    font.SetStyle(isGuess(row) ? wxFONTSTYLE_ITALIC : wxFONTSTYLE_NORMAL);
    SetItemFont(row, font);
}

void ListCtrlSource::write(const Rows &rows, const wxString &text) {
    m_changes.run([this, rows, text] {
        ColumnMatch match{m_names->positionOf(text), MatchOrigin::byHand};
        if (text == m_names->textOf(ShownNames::noColumn)) {
            match.origin = MatchOrigin::none;
        } else if (match.position == ShownNames::noColumn) {
            match.origin = MatchOrigin::foreign;
        }
        Matches matches;
        for (const long row : rows) {
            matches[row] = {match, text};
        }
        change(matches);
    });
}

void ListCtrlSource::change(const Matches &matches) {
    Matches changing;
    for (const auto &[row, match] : matches) {
        if (row < GetItemCount() && (isGuess(row) || GetItemText(row, matchColumn) != match.text)) {
            changing[row] = match;
        }
    }
    if (changing.empty()) {
        return;
    }
    exchange(changing);
    m_written([this, changing]() mutable {
        exchange(changing);
        EnsureVisible(changing.begin()->first);
    });
}

void ListCtrlSource::exchange(Matches &matches) {
    Rows rows;
    for (auto &[row, match] : matches) {
        const RowMatch before = rowMatch(row);
        m_origins[static_cast<std::size_t>(row)] = match;
        SetItem(row, matchColumn, match.text);
        applyMatchFont(row);
        match = before;
        rows.push_back(row);
    }
    m_changed(rows);
}

void ListCtrlSource::assign(const wxString &text) {
    // Takes the marks as they are now, but the current row as it is when the change is made.
    m_changes.run([this, text, marked = markedRows()] {
        Rows rows = marked.empty() ? chosenRows() : marked;
        if (rows.empty()) {
            rows.push_back(nextRow(wxNOT_FOUND, &ListCtrlSource::isUnused));
        }
        if (rows.front() == wxNOT_FOUND) {
            return;
        }
        write(rows, text);
        clearMarkedRows();
        const long next = nextRow(rows.back(), &ListCtrlSource::isUnused);
        goTo(next != wxNOT_FOUND ? next : rows.back());
    });
}

void ListCtrlSource::confirm(const Rows &rows) {
    m_changes.run([this, rows] {
        Matches confirmed;
        for (const long row : rows) {
            if (row < GetItemCount() && isGuess(row)) {
                confirmed[row] = rowMatch(row);
                confirmed[row].origin = MatchOrigin::byHand;
                confirmed[row].score = noScore;
            }
        }
        change(confirmed);
    });
}

long ListCtrlSource::nextRow(long row, bool (ListCtrlSource::*isWanted)(long) const) const {
    for (long step = 1; step <= GetItemCount(); ++step) {
        const long next = (row + step) % GetItemCount();
        if ((this->*isWanted)(next)) {
            return next;
        }
    }
    return wxNOT_FOUND;
}

long ListCtrlSource::rowAt(const wxPoint &position) const {
    int flags = 0;
    return HitTest(position, flags);
}

void ListCtrlSource::hoverOver(long row) {
    if (countMarkedRows() == 0) {
        clearHoverRows();
        SetItemState(row, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
    }
}

void ListCtrlSource::scrollAtEdge() {
    wxRect top;
    if (GetItemCount() == 0 || !GetItemRect(GetTopItem(), top)) {
        return;
    }
    constexpr int edge = 5;
    const int pointer = ScreenToClient(wxGetMousePosition()).y;
    if (pointer < top.y + edge) {
        ScrollList(0, -top.height);
    } else if (pointer >= GetClientSize().y - edge) {
        ScrollList(0, top.height);
    }
}

void ListCtrlSource::clearHoverRows() {
    constexpr long allRows = -1;
    SetItemState(allRows, 0, wxLIST_STATE_SELECTED);
}

void ListCtrlSource::markRows(long one, long other) {
    const long last = std::min<long>(std::max(one, other), GetItemCount() - 1);
    for (long row = std::min(one, other); row <= last; ++row) {
        m_marks.set(row, true);
    }
}

void ListCtrlSource::clearMarkedRows() {
    for (const long row : markedRows()) {
        m_marks.set(row, false);
    }
}

long ListCtrlSource::currentRow() const {
    return GetNextItem(wxNOT_FOUND, wxLIST_NEXT_ALL, wxLIST_STATE_FOCUSED);
}

void ListCtrlSource::moveTo(long row) {
    SetItemState(row, wxLIST_STATE_FOCUSED, wxLIST_STATE_FOCUSED);
    EnsureVisible(row);
}

void ListCtrlSource::goTo(long row) {
    m_keyAnchor = row;
    moveTo(row);
    clearHoverRows();
    hoverOver(row);
}

void ListCtrlSource::goToNextGuess(long row) {
    const long next = nextRow(row, &ListCtrlSource::isGuess);
    if (next != wxNOT_FOUND) {
        clearMarkedRows();
        goTo(next);
    }
}

ListCtrlSource::Rows ListCtrlSource::chosenRows() const {
    Rows rows = markedRows();
    if (rows.empty() && currentRow() != wxNOT_FOUND) {
        rows.push_back(currentRow());
    }
    return rows;
}

// The control does not get the press, since its own selection would mix with the marks. So it does
// not take the focus by itself.
void ListCtrlSource::onLeftDown(wxMouseEvent &) {
    SetFocus();
}

void ListCtrlSource::onLeftUp(wxMouseEvent &event) {
    const long row = rowAt(event.GetPosition());
    const bool isSecondClick = m_secondClick.release(static_cast<int>(row));
    if (row < 0) {
        clearMarkedRows();
        return;
    }
    clearHoverRows();
    const bool control = wxGetKeyState(WXK_CONTROL);
    const bool shift = wxGetKeyState(WXK_SHIFT);
    if (!control && !shift) {
        clearMarkedRows();
    }
    if (shift && m_lastClickedRow >= 0) {
        markRows(m_lastClickedRow, row);
    }
    m_marks.set(row, true);
    m_lastClickedRow = static_cast<std::int32_t>(row);
    m_keyAnchor = row;
    SetItemState(row, wxLIST_STATE_FOCUSED, wxLIST_STATE_FOCUSED);
    if (isSecondClick && !control && !shift) {
        confirm({row});
    }
}

void ListCtrlSource::onMouseMove(wxMouseEvent &event) {
    const long row = rowAt(event.GetPosition());
    if (row < 0) {
        return;
    }
    hoverOver(row);
    showTip(event.GetPosition(), row);
    if (!movedWithButtonDown(event)) {
        return;
    }
    m_secondClick.drag();
    if (!m_marks.isMarked(row)) {
        clearMarkedRows();
        m_marks.set(row, true);
    }
    const wxString name = GetItemText(row, matchColumn);
    m_draggedRow = row;
    dragText(*this, m_names->textForOthers(name, ShownNames::drag),
             rowsText(name, static_cast<std::size_t>(countMarkedRows())));
    m_draggedRow = wxNOT_FOUND;
}

void ListCtrlSource::showTip(const wxPoint &position, long row) {
    if (isGuess(row)) {
        setTip(*this,
               wxString::Format(translated("Similar names: %s and %s"),
                                GetItemText(row, matchColumn), GetItemText(row, matchColumn + 1)));
        return;
    }
    int column = 0;
    int right = GetColumnWidth(column) - GetScrollPos(wxHORIZONTAL);
    while (position.x >= right && column + 1 < GetColumnCount()) {
        right += GetColumnWidth(++column);
    }
    // The control leaves some pixels free at both ends of a text.
    tipWhereCut(*this, GetItemText(row, column), GetColumnWidth(column) - GetCharWidth());
}

} // namespace columnimport
