// SPDX-License-Identifier: MIT

#include "keyboard/FileListKeys.h"

#include "dragdrop/ListBoxSource.h"
#include "dragdrop/ListCtrlSource.h"
#include "dragdrop/controls.h"
#include "dragdrop/listBox.h"
#include "keyboard/clipboard.h"
#include "keyboard/findTyped.h"

#include <wx/time.h>

namespace columnimport {

FileListKeys::FileListKeys(ListBoxSource &files, ListCtrlSource &matches)
    : m_files(files), m_matches(matches) {
    files.Bind(wxEVT_KEY_DOWN, &FileListKeys::onKeyDown, this);
    files.Bind(wxEVT_CHAR_HOOK, &FileListKeys::onReturn, this);
    files.Bind(wxEVT_CHAR, &FileListKeys::onCharacter, this);
    forwardReturn(files);
}

void FileListKeys::onKeyDown(wxKeyEvent &event) {
    const int row = m_files.GetSelection();
    if (event.GetModifiers() == wxMOD_CONTROL && event.GetKeyCode() == 'C' && row != wxNOT_FOUND) {
        copyText(m_matches.names().textForOthers(m_files.GetString(static_cast<unsigned>(row))));
    } else {
        event.Skip();
    }
}

// The control would handle Return like a double click.
void FileListKeys::onReturn(wxKeyEvent &event) {
    if (event.GetKeyCode() != WXK_RETURN && event.GetKeyCode() != WXK_NUMPAD_ENTER) {
        event.Skip();
    } else if (event.ControlDown()) {
        m_typed.clear();
        m_files.pick(m_files.GetSelection());
    } else {
        pressOkSoon(m_files);
    }
}

void FileListKeys::onCharacter(wxKeyEvent &event) {
    const wxChar character = event.GetUnicodeKey();
    if (event.HasModifiers() || character < WXK_SPACE || character == WXK_DELETE) {
        event.Skip();
        return;
    }
    constexpr int pause = 1500; // after which typing begins anew
    const wxLongLong now = wxGetUTCTimeMillis();
    if (now - m_typedAt > pause) {
        m_typed.clear();
    }
    m_typedAt = now;
    m_typed += character;
    const int found = findTyped(m_files.names(), m_typed, m_files.GetSelection());
    if (found != wxNOT_FOUND) {
        m_files.goTo(found);
    }
}

} // namespace columnimport
