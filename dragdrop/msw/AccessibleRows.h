// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

class wxListCtrl;
class wxString;

namespace columnimport {

class RowMarks;

/// The rows of the match list for a screen reader. The native control has an item for each, but
/// names it after its first column alone and does not know that it can be marked.
///
///     gold is to get Au g/t       an item "gold: Au g/t"
///     gold gets nothing           an item "gold: Not used"
///     the row is marked           the item is selected
class AccessibleRows {
public:
    /// To be made after the control and its marks, and to go before them. `name` tells the list
    /// from other lists.
    AccessibleRows(wxListCtrl &list, RowMarks &marks, const wxString &name);

    /// Has the reader say what now stands in `rows`, which are not none.
    void tell(const std::vector<long> &rows);

private:
    wxListCtrl &m_list;
};

} // namespace columnimport
