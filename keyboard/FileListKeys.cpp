// SPDX-License-Identifier: MIT

#include "keyboard/listKeys.h"

#include "dragdrop/ListBoxSource.h"
#include "dragdrop/ListCtrlSource.h"
#include "dragdrop/controls.h"

#include <algorithm>

#include <wx/arrstr.h>
#include <wx/time.h>

namespace columnimport {

namespace {

/// The next of `names` that begins with `typed`, or else the next one that contains it, ignoring
/// case; wxNOT_FOUND if there is none. Starts at `selected`, which may be wxNOT_FOUND, and wraps at
/// the end. A single character starts behind `selected`, so that typing it again moves on.
///
///     with {"AU", "CU", "AG", "ZN_AU"}:  "a" finds 0, then 2, then 0;  "ag" finds 2;  "n_" finds 3
int findTyped(const wxArrayString &names, const wxString &typed, int selected) {
    const wxString wanted = typed.Lower();
    const std::size_t count = names.size();
    const int from = std::max(selected + (typed.length() == 1 ? 1 : 0), 0);
    int containing = wxNOT_FOUND;
    for (std::size_t step = 0; step < count; ++step) {
        const std::size_t row = (static_cast<std::size_t>(from) + step) % count;
        const std::size_t place = names[row].Lower().find(wanted);
        if (place == 0) {
            return static_cast<int>(row);
        }
        if (place != wxString::npos && containing == wxNOT_FOUND) {
            containing = static_cast<int>(row);
        }
    }
    return containing;
}

} // namespace

FileListKeys::FileListKeys(ListBoxSource &files, ListCtrlSource &matches)
    : m_files(files), m_matches(matches) {
    files.Bind(wxEVT_KEY_DOWN, &FileListKeys::onKeyDown, this);
    files.Bind(wxEVT_CHAR_HOOK, &FileListKeys::onReturn, this);
    files.Bind(wxEVT_CHAR, &FileListKeys::onCharacter, this);
}

void FileListKeys::onKeyDown(wxKeyEvent &event) {
    const int row = m_files.GetSelection();
    if (event.GetModifiers() == wxMOD_CONTROL && event.GetKeyCode() == 'C' && row != wxNOT_FOUND) {
        copyName(m_matches.names(), m_files.GetString(static_cast<unsigned>(row)));
    } else {
        event.Skip();
    }
}

// Otherwise the control handles Return like a double click.
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
    constexpr int pause = 1500; // milliseconds, after which typing starts afresh
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
