// SPDX-License-Identifier: MIT

#pragma once

#include <wx/event.h>
#include <wx/longlong.h>
#include <wx/string.h>

namespace columnimport {

class ListBoxSource;
class ListCtrlSource;

/// The keys of the list of file columns. Control and Return picks the entry, as a double click
/// does, and Control and C copies its name. Typing selects the next entry that begins with what is
/// typed, or else the next one that contains it.
class FileListKeys : public wxEvtHandler {
public:
    /// Attaches itself to `files`. Both lists must outlive this object.
    FileListKeys(ListBoxSource &files, ListCtrlSource &matches);

private:
    void onKeyDown(wxKeyEvent &event);
    void onReturn(wxKeyEvent &event);
    void onCharacter(wxKeyEvent &event);

    ListBoxSource &m_files;
    ListCtrlSource &m_matches;
    wxString m_typed;
    wxLongLong m_typedAt; // when its last character was typed, in milliseconds
};

} // namespace columnimport
