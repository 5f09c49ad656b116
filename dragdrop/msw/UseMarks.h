// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

class wxArrayString;
class wxListBox;

namespace columnimport {

/// The check marks in a list of names. Each entry has space for one before its name, so that the
/// mark stays visible beside a name that is cut:
///
///     ✓ HOLE     a screen reader reads "HOLE, in use"
///       AU       "AU"
///
/// The native control only shows text: an entry is the mark or nothing, a tab, and the name.
class UseMarks {
public:
    /// `list` must outlive this object.
    explicit UseMarks(wxListBox &list);

    /// Replaces all entries by `names`, without marks.
    void showNames(const wxArrayString &names);

    void set(unsigned row, bool isUsed);
    bool isUsed(unsigned row) const { return row < m_isUsed.size() && m_isUsed[row]; }

    /// The room before a name, in pixels.
    int width() const;

private:
    wxListBox &m_list;
    std::vector<bool> m_isUsed; // by entry
};

} // namespace columnimport
