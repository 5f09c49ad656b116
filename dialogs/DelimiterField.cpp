// SPDX-License-Identifier: MIT

#include "dialogs/DelimiterField.h"

#include "dialogs/nativeControls.h"
#include "languages/translated.h"
#include "names/nameText.h"
#include "readers/describe.h"

#include <string>

#include <wx/menu.h>
#include <wx/translation.h>

namespace columnimport {

namespace {

struct Delimiter {
    const char *name;
    char character;
};

constexpr Delimiter usualDelimiters[] = {
    {wxTRANSLATE("Comma"), ','}, {wxTRANSLATE("Semicolon"), ';'}, {wxTRANSLATE("Tab"), '\t'},
    {wxTRANSLATE("Space"), ' '}, {wxTRANSLATE("Bar"), '|'},
};

} // namespace

DelimiterField::DelimiterField(wxWindow *parent, wxWindowID id, char delimiter, const wxSize &size)
    : wxTextCtrl(parent, id, decoded(std::string(1, delimiter)), wxDefaultPosition, size) {
    SetMaxLength(1);
    fitOneCharacter(*this);
    setAccessibleName(*this, translated("Field delimiter"));
    SetToolTip(translated("One character, taken as it stands; a tab can be pasted.\n"
                          "Another one cuts the first line anew and matches its columns afresh."));
    Bind(wxEVT_SET_FOCUS, [this](wxFocusEvent &event) {
        selectSoon();
        event.Skip();
    });
    Bind(wxEVT_LEFT_UP, [this](wxMouseEvent &event) {
        selectSoon();
        event.Skip();
    });
    Bind(wxEVT_KEY_DOWN, &DelimiterField::onKeyDown, this);
    Bind(wxEVT_CONTEXT_MENU, &DelimiterField::onContextMenu, this);
}

// The control's own response, which moves the cursor, comes first.
void DelimiterField::selectSoon() {
    CallAfter([this] { SelectAll(); });
}

void DelimiterField::onKeyDown(wxKeyEvent &event) {
    if (event.GetKeyCode() == WXK_DOWN || event.GetKeyCode() == WXK_NUMPAD_DOWN) {
        offer(GetClientRect().GetBottomLeft());
    } else {
        event.Skip();
    }
}

void DelimiterField::onContextMenu(wxContextMenuEvent &event) {
    const bool isByKey = event.GetPosition() == wxDefaultPosition;
    offer(isByKey ? GetClientRect().GetBottomLeft() : ScreenToClient(event.GetPosition()));
}

void DelimiterField::offer(const wxPoint &position) {
    wxMenu menu;
    for (const Delimiter &usual : usualDelimiters) {
        const wxString text(usual.character);
        wxMenuItem *item = menu.AppendCheckItem(wxID_ANY, translated(usual.name));
        item->Check(GetValue() == text);
        menu.Bind(
            wxEVT_MENU, [this, text](wxCommandEvent &) { SetValue(text); }, item->GetId());
    }
    menu.AppendSeparator();
    menu.Append(wxID_PASTE);
    SelectAll();
    PopupMenu(&menu, position);
    SelectAll();
}

} // namespace columnimport
