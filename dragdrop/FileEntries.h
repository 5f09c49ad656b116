// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

class wxArrayString;
class wxListBox;

namespace columnimport {

/// The entries of the list of file columns, as the native control shows them. Check marks precede
/// the names, so that a long name does not hide its mark:
///
///     ✓ HOLE     a screen reader reads "HOLE, in use"
///       AU       "AU"
///
/// The control sends Return as wxEVT_CHAR_HOOK before it acts on it. Each platform has a file of
/// its own for this class.
class FileEntries {
public:
    /// `list` must outlive this object.
    explicit FileEntries(wxListBox &list);
    ~FileEntries();
    FileEntries(const FileEntries &) = delete;
    FileEntries &operator=(const FileEntries &) = delete;

    /// Replaces all entries by `names`, without marks.
    void showNames(const wxArrayString &names);

    void mark(unsigned row, bool isUsed);
    bool isMarked(unsigned row) const { return row < m_isMarked.size() && m_isMarked[row]; }

    /// Selects the entry `row`; the arrow keys continue from it.
    void goTo(int row);

    /// The space before a name, in pixels.
    int markWidth() const;

private:
    wxListBox &m_list;
    std::vector<bool> m_isMarked; // by entry
};

} // namespace columnimport
