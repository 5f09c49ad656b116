// SPDX-License-Identifier: MIT

#pragma once

#include "names/ColumnMatch.h"

#include <cstddef>

#include <wx/string.h>

namespace columnimport {

/// What a row of the match list shows, and where it came from.
struct RowMatch : ColumnMatch {
    wxString text;
};

/// The text for `count` rows, the first of which reads `first`: "Au g/t", or "Au g/t (3 rows)".
wxString rowsText(const wxString &first, std::size_t count);

} // namespace columnimport
