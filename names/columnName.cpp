// SPDX-License-Identifier: MIT

#include "names/columnName.h"

namespace columnimport {

std::string columnName(const std::vector<std::string> &titles, bool holdsTitles,
                       std::size_t position) {
    return holdsTitles ? titles[position] : "Column" + std::to_string(position + 1);
}

} // namespace columnimport
