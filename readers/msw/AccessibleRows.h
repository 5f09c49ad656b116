// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

class wxString;

namespace columnimport {

class ListCtrlSource;

/// The rows of the match list for a screen reader. The native control has an item for each, but
/// names it after its first column alone and does not know that it can be marked.
///
///     gold is to get Au g/t       an item "gold: Au g/t"
///     the same as a guess         an item "gold: Au g/t, a guess"
///     gold gets nothing           an item "gold: Not used"
///     the row is marked           the item is selected
class AccessibleRows {
public:
    /// Attaches itself to `list`, which must outlive this object. `name` tells the list from other
    /// lists.
    AccessibleRows(ListCtrlSource &list, const wxString &name);

    /// Has the reader announce what `rows` hold now. `rows` must not be empty.
    void announce(const std::vector<long> &rows);

private:
    ListCtrlSource &m_list;
};

} // namespace columnimport
