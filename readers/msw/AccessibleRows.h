// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

class wxString;

namespace columnimport {

class ListCtrlSource;

/// The rows of the match list for a screen reader. The native control has an item for each row, but
/// names it after the first column alone and has no marks.
///
///     gold is to get Au g/t       an item "gold: Au g/t"
///     the same as a guess         an item "gold: Au g/t, a guess"
///     gold gets nothing           an item "gold: Not used"
///     the row is marked           the item is selected
class AccessibleRows {
public:
    /// Attaches itself to `list`, which must outlive this object. `name` is the list's name.
    AccessibleRows(ListCtrlSource &list, const wxString &name);

    /// Lets the reader announce the present texts of `rows`, which must not be empty.
    void announce(const std::vector<long> &rows);

private:
    ListCtrlSource &m_list;
};

} // namespace columnimport
