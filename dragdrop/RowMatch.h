// SPDX-License-Identifier: MIT

#pragma once

#include "names/ColumnMatch.h"

#include <wx/string.h>

namespace columnimport {

/// What a row of the match list shows, and where it came from.
struct RowMatch : ColumnMatch {
    wxString text;
};

} // namespace columnimport
