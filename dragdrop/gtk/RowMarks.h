// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <utility>
#include <vector>

class wxListCtrl;

namespace columnimport {

/// Which rows of a list control are marked, and their highlight.
///
/// The control here knows no state that could serve: the marks are held beside it, shown through
/// the colours of the rows, and forgotten when the rows are deleted.
class RowMarks {
public:
    explicit RowMarks(wxListCtrl &list);

    void set(long row, bool marked);
    bool isMarked(long row) const;

    /// The first marked row behind `row`, or -1.
    long next(long row) const;

    /// From now on `changed` is called whenever a row has been marked or is no more.
    void onChange(std::function<void(long row)> changed) { m_changed = std::move(changed); }

private:
    wxListCtrl &m_list;
    std::function<void(long)> m_changed;
    std::vector<bool> m_marked; // rows behind its end are not marked
};

} // namespace columnimport
