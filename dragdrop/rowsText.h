// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>

class wxString;

namespace columnimport {

/// The text for `count` rows, the first of which reads `first`: "Au g/t", or "Au g/t (3 rows)".
wxString rowsText(const wxString &first, std::size_t count);

} // namespace columnimport
