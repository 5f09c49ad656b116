// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <utility>
#include <vector>

class wxListCtrl;

namespace columnimport {

/// Which rows of a list control are marked. Here the control has no state for this, so this class
/// keeps the marks, shows them in the colours of the rows, and drops them with the rows.
class RowMarks {
public:
    explicit RowMarks(wxListCtrl &list);

    void set(long row, bool marked);
    bool isMarked(long row) const;

    /// The first marked row behind `row`, or -1.
    long next(long row) const;

    /// Calls `changed` after a row has been marked or unmarked.
    void onChange(std::function<void(long row)> changed) { m_changed = std::move(changed); }

private:
    wxListCtrl &m_list;
    std::function<void(long)> m_changed;
    std::vector<bool> m_marked; // rows beyond its end are not marked
};

} // namespace columnimport
