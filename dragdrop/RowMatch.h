// SPDX-License-Identifier: MIT

#pragma once

#include "names/ColumnMatch.h"

#include <wx/string.h>

namespace columnimport {

/// What a row of the match list holds, as it is shown, and how it came there.
struct RowMatch : ColumnMatch {
    wxString text;
};

} // namespace columnimport
