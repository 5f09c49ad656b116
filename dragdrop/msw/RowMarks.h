// SPDX-License-Identifier: MIT

#pragma once

class wxListCtrl;

namespace columnimport {

/// Which rows of a list control are marked. The control has a state for it here, which it shows and
/// drops with the rows.
class RowMarks {
public:
    explicit RowMarks(wxListCtrl &list) : m_list(list) {}

    void set(long row, bool marked);
    bool isMarked(long row) const;

    /// The first marked row behind `row`, or -1.
    long next(long row) const;

private:
    wxListCtrl &m_list;
};

} // namespace columnimport
