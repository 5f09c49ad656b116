// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "matching/matchColumns.h"

namespace columnimport::reference {

/// `columnimport::matchColumns` as its rule is told: every file column is scored with every
/// application column by `columnNameScore`, and has at least 0.99 for one that it is an alternative
/// of. Slow, and plain enough to be checked by reading; the
/// product never uses it, and its own matcher must give the same proposals.
std::vector<std::int32_t> matchColumns(std::vector<std::string> appColumns,
                                       std::vector<std::string> fileColumns,
                                       const Alternatives &alternatives);
std::vector<std::int32_t> matchColumns(std::vector<std::string> appColumns,
                                       std::vector<std::string> fileColumns);

} // namespace columnimport::reference
