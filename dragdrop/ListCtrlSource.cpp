// SPDX-License-Identifier: MIT

#include "dragdrop/ListCtrlSource.h"

#include "dragdrop/ListBoxSource.h"
#include "dragdrop/controls.h"
#include "dragdrop/dragText.h"
#include "dragdrop/rowsText.h"
#include "dragdrop/tipWhereCut.h"
#include "languages/translated.h"

#include <algorithm>
#include <unordered_set>

namespace columnimport {

ListCtrlSource::ListCtrlSource(wxWindow *parent, wxWindowID id, const wxPoint &position,
                               const wxSize &size)
    : wxListCtrl(parent, id, position, size, wxLC_REPORT), m_marks(*this),
      m_accessible(*this, m_marks, translated("Column matching")), m_keys(*this) {
    Bind(wxEVT_LEFT_DOWN, &ListCtrlSource::onLeftDown, this, wxID_ANY, wxID_ANY);
    Bind(wxEVT_LEFT_UP, &ListCtrlSource::onLeftUp, this, wxID_ANY, wxID_ANY);
    Bind(wxEVT_MOTION, &ListCtrlSource::onMouseMove, this, wxID_ANY, wxID_ANY);
    Bind(wxEVT_LEFT_DCLICK, &ListCtrlSource::onLeftDown, this);
    // The control would select rows with any button.
    for (const auto &press :
         {wxEVT_MIDDLE_DOWN, wxEVT_MIDDLE_DCLICK, wxEVT_RIGHT_DOWN, wxEVT_RIGHT_DCLICK}) {
        Bind(press, [](wxMouseEvent &) {});
    }
}

// What is held beside the rows hears of their end, and has to be there yet.
ListCtrlSource::~ListCtrlSource() {
    DeleteAllItems();
}

std::string ListCtrlSource::getMatchText(int row) const {
    return m_names->bytesOf(GetItemText(row, matchColumn));
}

SourceMatch ListCtrlSource::getMatch(int row) const {
    const wxString text = GetItemText(row, matchColumn);
    if (text == m_names->textOf(NameBook::noColumn)) {
        return {};
    }
    return {{m_names->positionOf(text)}, m_names->bytesOf(text)};
}

void ListCtrlSource::appendRow(const wxString &matchText, const wxString &application) {
    const long row = InsertItem(GetItemCount(), matchText);
    SetItem(row, matchColumn + 1, application);
}

std::vector<wxString> ListCtrlSource::matchTexts() const {
    std::vector<wxString> texts;
    for (long row = 0; row < GetItemCount(); ++row) {
        texts.push_back(GetItemText(row, matchColumn));
    }
    return texts;
}

void ListCtrlSource::setMatchTexts(const std::vector<long> &rows, const wxString &text) {
    if (rows.empty()) {
        return;
    }
    std::vector<wxString> texts(rows.size(), text);
    exchange(rows, texts);
    m_history.add([this, rows, texts]() mutable {
        exchange(rows, texts);
        EnsureVisible(rows.front());
    });
}

void ListCtrlSource::exchange(const std::vector<long> &rows, std::vector<wxString> &texts) {
    for (std::size_t index = 0; index < rows.size(); ++index) {
        const wxString before = GetItemText(rows[index], matchColumn);
        SetItem(rows[index], matchColumn, texts[index]);
        applyMatchFont(rows[index]);
        texts[index] = before;
    }
    showUse();
    m_accessible.tell(rows);
}

void ListCtrlSource::assign(const wxString &text) {
    std::vector<long> rows = m_keys.chosenRows();
    if (rows.empty()) {
        rows.push_back(nextUnusedRow(wxNOT_FOUND));
    }
    if (rows.front() == wxNOT_FOUND) {
        return;
    }
    setMatchTexts(rows, text);
    clearMarkedRows();
    const long next = nextUnusedRow(rows.back());
    m_keys.goTo(next != wxNOT_FOUND ? next : rows.back());
}

long ListCtrlSource::nextUnusedRow(long row) const {
    for (long step = 1; step <= GetItemCount(); ++step) {
        const long next = (row + step) % GetItemCount();
        if (isUnused(next)) {
            return next;
        }
    }
    return wxNOT_FOUND;
}

void ListCtrlSource::showUse() {
    std::unordered_set<std::int32_t> used;
    for (const wxString &text : matchTexts()) {
        used.insert(m_names->positionOf(text));
    }
    findControl<ListBoxSource>(*this, fileListId)->showUse(used);
}

bool ListCtrlSource::isUnused(long row) const {
    return m_names->isUnused(GetItemText(row, matchColumn));
}

void ListCtrlSource::applyMatchFont(long row) {
    // A row that never had a font of its own gives an invalid one in some list controls.
    wxFont font = GetItemFont(row);
    if (!font.IsOk()) {
        font = GetFont();
    }
    font.SetWeight(isUnused(row) ? wxFONTWEIGHT_BOLD : wxFONTWEIGHT_NORMAL);
    SetItemFont(row, font);
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

void ListCtrlSource::layOutRows() {
    OnInternalIdle();
}

void ListCtrlSource::clearHoverRows() {
    for (long row = GetNextItem(wxNOT_FOUND, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
         row != wxNOT_FOUND; row = GetNextItem(row, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED)) {
        SetItemState(row, 0, wxLIST_STATE_SELECTED);
    }
}

void ListCtrlSource::markRows(long one, long other) {
    for (long row = std::min(one, other); row <= std::max(one, other); ++row) {
        m_marks.set(row, true);
    }
}

void ListCtrlSource::clearMarkedRows() {
    for (long row = nextMarkedRow(wxNOT_FOUND); row != wxNOT_FOUND; row = nextMarkedRow(row)) {
        m_marks.set(row, false);
    }
}

int ListCtrlSource::countMarkedRows() const {
    return static_cast<int>(markedRows().size());
}

std::vector<long> ListCtrlSource::markedRows() const {
    std::vector<long> rows;
    for (long row = nextMarkedRow(wxNOT_FOUND); row != wxNOT_FOUND; row = nextMarkedRow(row)) {
        rows.push_back(row);
    }
    return rows;
}

long ListCtrlSource::nextMarkedRow(long row) const {
    return m_marks.next(row);
}

// The press is kept from the control, whose own selection would mix with the marks; so it takes no
// focus by itself.
void ListCtrlSource::onLeftDown(wxMouseEvent &) {
    SetFocus();
}

void ListCtrlSource::onLeftUp(wxMouseEvent &event) {
    const long row = rowAt(event.GetPosition());
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
    // The list may have fewer rows than when the anchor was set.
    if (shift && m_lastClickedRow >= 0 && m_lastClickedRow < GetItemCount()) {
        markRows(m_lastClickedRow, row);
    }
    m_marks.set(row, true);
    m_lastClickedRow = static_cast<std::int32_t>(row);
    m_keys.startFrom(row);
}

void ListCtrlSource::onMouseMove(wxMouseEvent &event) {
    const long row = rowAt(event.GetPosition());
    if (row < 0) {
        return;
    }
    hoverOver(row);
    tipWhereCutAt(event.GetPosition(), row);
    if (!movedWithButtonDown(event)) {
        return;
    }
    if (!m_marks.isMarked(row)) {
        clearMarkedRows();
        m_marks.set(row, true);
    }
    const wxString name = GetItemText(row, matchColumn);
    dragText(*this, name, rowsText(name, static_cast<std::size_t>(countMarkedRows())));
}

void ListCtrlSource::tipWhereCutAt(const wxPoint &position, long row) {
    int column = 0;
    int right = GetColumnWidth(column) - GetScrollPos(wxHORIZONTAL);
    while (position.x >= right && column + 1 < GetColumnCount()) {
        right += GetColumnWidth(++column);
    }
    // The list keeps some pixels free at both ends of a text.
    tipWhereCut(*this, GetItemText(row, column), GetColumnWidth(column) - GetCharWidth());
}

} // namespace columnimport
