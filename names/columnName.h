// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace columnimport {

/// The name under which an import knows one of the source's columns: its title, or without titles
/// "Column1" at position 0, "Column2" at 1 and so on.
std::string columnName(const std::vector<std::string> &titles, bool holdsTitles,
                       std::size_t position);

} // namespace columnimport
