// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace columnimport {

/// The match text of an application column that has no file column.
inline constexpr const char *notUsed = "Not used";

/// The name of a source column in an import: its title, or without titles "Column1" at position 0,
/// "Column2" at 1 and so on.
inline std::string columnName(const std::vector<std::string> &titles, bool holdsTitles,
                              std::size_t position) {
    return holdsTitles ? titles[position] : "Column" + std::to_string(position + 1);
}

} // namespace columnimport
