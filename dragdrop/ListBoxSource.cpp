// SPDX-License-Identifier: MIT

#include "dragdrop/ListBoxSource.h"

#include "dragdrop/ListCtrlSource.h"
#include "dragdrop/clipboard.h"
#include "dragdrop/controls.h"
#include "dragdrop/dragText.h"
#include "dragdrop/findTyped.h"
#include "dragdrop/tipWhereCut.h"
#include "languages/translated.h"
#include "listBox.h" // of the platform

#include <wx/time.h>

namespace columnimport {

ListBoxSource::ListBoxSource(wxWindow *parent, wxWindowID id, const wxPoint &position,
                             const wxSize &size)
    : wxListBox(parent, id, position, size), m_useMarks(*this, translated("File columns")) {
    Bind(wxEVT_LEFT_DOWN, &ListBoxSource::onLeftDown, this, wxID_ANY, wxID_ANY);
    Bind(wxEVT_MOTION, &ListBoxSource::onMouseMove, this, wxID_ANY, wxID_ANY);
    Bind(wxEVT_LEFT_DCLICK, [this](wxMouseEvent &event) { assign(HitTest(event.GetPosition())); });
    // Also what a screen reader does with an entry.
    Bind(wxEVT_LISTBOX_DCLICK, [this](wxCommandEvent &event) { assign(event.GetInt()); });
    Bind(wxEVT_CHAR_HOOK, &ListBoxSource::onReturn, this);
    Bind(wxEVT_KEY_DOWN, &ListBoxSource::onKeyDown, this);
    Bind(wxEVT_CHAR, &ListBoxSource::onCharacter, this);
    // The control would select an entry with any button.
    for (const auto &press :
         {wxEVT_MIDDLE_DOWN, wxEVT_MIDDLE_DCLICK, wxEVT_RIGHT_DOWN, wxEVT_RIGHT_DCLICK}) {
        Bind(press, [](wxMouseEvent &) {});
    }
    hearReturn(*this);
}

ListBoxSource::~ListBoxSource() = default;

void ListBoxSource::showNames(const wxArrayString &names) {
    m_names = names;
    m_useMarks.showNames(names);
}

void ListBoxSource::showUse(const std::unordered_set<std::int32_t> &used) {
    for (unsigned row = 0; row < m_names.size(); ++row) {
        const bool isUsed = used.count(static_cast<std::int32_t>(row)) != 0;
        if (isUsed != m_useMarks.isUsed(row)) {
            m_useMarks.set(row, isUsed);
        }
    }
}

wxString ListBoxSource::GetString(unsigned row) const {
    return m_names[row];
}

// The control is not told of the press, so it takes no focus by itself.
void ListBoxSource::onLeftDown(wxMouseEvent &event) {
    SetFocus();
    const int row = HitTest(event.GetPosition());
    if (row >= 0) {
        goToEntry(*this, row);
    }
}

void ListBoxSource::onMouseMove(wxMouseEvent &event) {
    const int row = HitTest(event.GetPosition());
    if (row < 0) {
        return;
    }
    tipWhereCut(*this, GetString(static_cast<unsigned>(row)),
                GetClientSize().x - m_useMarks.width() - GetCharWidth());
    if (!movedWithButtonDown(event)) {
        return;
    }
    findControl<ListCtrlSource>(*this, matchListId)->clearMarkedRows();
    SetSelection(row);
    const wxString name = GetString(static_cast<unsigned>(row));
    dragText(*this, name, name);
}

void ListBoxSource::onKeyDown(wxKeyEvent &event) {
    const int row = GetSelection();
    if (event.GetModifiers() == wxMOD_CONTROL && event.GetKeyCode() == 'C' && row != wxNOT_FOUND) {
        copyText(GetString(static_cast<unsigned>(row)));
    } else {
        event.Skip();
    }
}

// The control would take Return for a second click too.
void ListBoxSource::onReturn(wxKeyEvent &event) {
    if (event.GetKeyCode() != WXK_RETURN && event.GetKeyCode() != WXK_NUMPAD_ENTER) {
        event.Skip();
    } else if (event.ControlDown()) {
        assign(GetSelection());
    } else {
        wxCommandEvent ok(wxEVT_BUTTON, wxID_OK);
        wxGetTopLevelParent(this)->GetEventHandler()->AddPendingEvent(ok);
    }
}

void ListBoxSource::onCharacter(wxKeyEvent &event) {
    const wxChar character = event.GetUnicodeKey();
    if (event.HasModifiers() || character < WXK_SPACE || character == WXK_DELETE) {
        event.Skip();
        return;
    }
    constexpr int pause = 1500; // after which another name is meant
    const wxLongLong now = wxGetUTCTimeMillis();
    if (now - m_typedAt > pause) {
        m_typed.clear();
    }
    m_typedAt = now;
    m_typed += character;
    const int found = findTyped(m_names, m_typed, GetSelection());
    if (found != wxNOT_FOUND) {
        goToEntry(*this, found);
    }
}

void ListBoxSource::assign(int row) {
    m_typed.clear();
    if (row != wxNOT_FOUND) {
        findControl<ListCtrlSource>(*this, matchListId)
            ->assign(GetString(static_cast<unsigned>(row)));
    }
}

} // namespace columnimport
