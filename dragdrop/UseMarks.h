// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

class wxArrayString;
class wxListBox;

namespace columnimport {

/// The check marks in a list of names. They precede the names, so that a long name does not hide
/// its mark:
///
///     ✓ HOLE     a screen reader reads "HOLE, in use"
///       AU       "AU"
///
/// Each platform has a file of its own for it.
class UseMarks {
public:
    /// `list` must outlive this object.
    explicit UseMarks(wxListBox &list);
    ~UseMarks();
    UseMarks(const UseMarks &) = delete;
    UseMarks &operator=(const UseMarks &) = delete;

    /// Replaces all entries by `names`, without marks.
    void showNames(const wxArrayString &names);

    void set(unsigned row, bool isUsed);
    bool isUsed(unsigned row) const { return row < m_isUsed.size() && m_isUsed[row]; }

    /// The space before a name, in pixels.
    int width() const;

private:
    wxListBox &m_list;
    std::vector<bool> m_isUsed; // by entry
};

} // namespace columnimport
