// SPDX-License-Identifier: MIT

#pragma once

#include <wx/event.h>
#include <wx/longlong.h>
#include <wx/string.h>

namespace columnimport {

class ListBoxSource;
class ListCtrlSource;

/// The keys of the list of file columns. Ctrl+Return picks the selected entry, like a double click.
/// Ctrl+C copies its name. Typing selects the next entry that begins with the typed text, or else
/// the next one that contains it.
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
    wxLongLong m_typedAt; // time of its last character, in milliseconds
};

} // namespace columnimport
