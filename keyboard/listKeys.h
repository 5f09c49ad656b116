// SPDX-License-Identifier: MIT

#pragma once

#include "keyboard/clipboard.h"

#include <optional>

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

/// The keys of the match list. The arrow keys move the current row and highlight it. Keys that
/// change matches apply to the marked rows, or else to the current one.
class MatchListKeys : public wxEvtHandler {
public:
    /// Attaches itself to `list`, which must outlive this object.
    explicit MatchListKeys(ListCtrlSource &list);

private:
    void onKeyDown(wxKeyEvent &event);
    void onReturn(wxKeyEvent &event);
    void onCharacter(wxKeyEvent &event);

    /// Handles a key that changes or copies a row's text; returns false for any other key.
    bool edit(const wxKeyEvent &key);

    /// The row that a key moves to, which may be out of range; none for other keys.
    std::optional<long> targetOf(int key) const;

    /// Moves the current row to `row`, or to the first or last one. Marks rows as Control and Shift
    /// of `key` demand.
    void moveCurrentRow(long row, const wxKeyEvent &key);

    void showCurrentRow();
    void markCurrentRow(bool alone);

    ListCtrlSource &m_list;
    Paste m_paste;
};

} // namespace columnimport
