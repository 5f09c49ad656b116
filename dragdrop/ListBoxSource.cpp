// SPDX-License-Identifier: MIT

#include "dragdrop/ListBoxSource.h"

#include "dragdrop/ListCtrlSource.h"
#include "dragdrop/controls.h"

namespace columnimport {

ListBoxSource::ListBoxSource(wxWindow *parent, wxWindowID id, const wxPoint &position,
                             const wxSize &size)
    : wxListBox(parent, id, position, size), m_entries(*this) {
    Bind(wxEVT_LEFT_DOWN, &ListBoxSource::onLeftDown, this, wxID_ANY, wxID_ANY);
    Bind(wxEVT_MOTION, &ListBoxSource::onMouseMove, this, wxID_ANY, wxID_ANY);
    Bind(wxEVT_LEFT_UP, &ListBoxSource::onLeftUp, this);
    Bind(wxEVT_LEFT_DCLICK, [this](wxMouseEvent &event) {
        m_secondClick.pressAgain(HitTest(event.GetPosition()));
        onLeftDown(event);
    });
    // Screen readers activate an entry this way.
    Bind(wxEVT_LISTBOX_DCLICK, [this](wxCommandEvent &event) { pick(event.GetInt()); });
    ignoreOtherButtons(*this);
}

void ListBoxSource::pick(int row) {
    if (row != wxNOT_FOUND) {
        m_picked(GetString(static_cast<unsigned>(row)));
    }
}

void ListBoxSource::showNames(const wxArrayString &names) {
    m_names = names;
    m_entries.showNames(names);
}

void ListBoxSource::showUse(const std::unordered_set<std::int32_t> &used) {
    for (unsigned row = 0; row < m_names.size(); ++row) {
        const bool isUsed = used.count(static_cast<std::int32_t>(row)) != 0;
        if (isUsed != m_entries.isMarked(row)) {
            m_entries.mark(row, isUsed);
        }
    }
}

wxString ListBoxSource::GetString(unsigned row) const {
    return m_names[row];
}

// The control does not get the press, so it does not take the focus by itself.
void ListBoxSource::onLeftDown(wxMouseEvent &event) {
    SetFocus();
    const int row = HitTest(event.GetPosition());
    if (row >= 0) {
        goTo(row);
    }
}

void ListBoxSource::onLeftUp(wxMouseEvent &event) {
    const int row = HitTest(event.GetPosition());
    if (m_secondClick.release(row)) {
        pick(row);
    }
    event.Skip();
}

void ListBoxSource::onMouseMove(wxMouseEvent &event) {
    const int row = HitTest(event.GetPosition());
    if (row < 0) {
        return;
    }
    const wxString name = GetString(static_cast<unsigned>(row));
    tipWhereCut(*this, name, GetClientSize().x - m_entries.markWidth() - GetCharWidth());
    if (!movedWithButtonDown(event)) {
        return;
    }
    m_secondClick.drag();
    auto &matches = *findControl<ListCtrlSource>(*this, matchListId);
    matches.clearMarkedRows();
    SetSelection(row);
    dragText(*this, matches.names().textForOthers(name, ShownNames::drag), name);
}

} // namespace columnimport
