// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <set>
#include <utility>
#include <vector>

#include <wx/colour.h>

class wxListCtrl;

namespace columnimport {

/// Which rows of a list control are marked. Here the control has no state for this, so this class
/// keeps the marks, shows them in the colours of the rows, and drops them with the rows.
class RowMarks {
public:
    explicit RowMarks(wxListCtrl &list);

    void set(long row, bool marked);
    bool isMarked(long row) const { return m_marked.count(row) != 0; }

    /// The marked rows, in ascending order.
    std::vector<long> rows() const { return {m_marked.begin(), m_marked.end()}; }

    /// Calls `changed` after a row has been marked or unmarked.
    void onChange(std::function<void(long row)> changed) { m_changed = std::move(changed); }

private:
    wxListCtrl &m_list;
    std::function<void(long)> m_changed;
    std::set<long> m_marked;
};

/// How a marked row is shown.
struct MarkColours {
    wxColour ground;
    wxColour text;
};

/// The colours of a marked row in a list with this `background` and with `hover` as the colour of
/// the row under the pointer: a tone of `hover` that stands out from both, and black or white text.
/// A person can tell the three apart in any theme.
MarkColours markColours(const wxColour &background, const wxColour &hover);

/// The contrast of two colours: from 1 for equal ones to 21 for black and white. A mark needs 3,
/// text needs 4.5.
double contrast(const wxColour &one, const wxColour &other);

} // namespace columnimport
