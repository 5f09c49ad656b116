// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "matching/matchColumns.h"

namespace columnimport::reference {

/// The rule of `columnimport::matchColumns` in its plain form: every file column is scored with
/// every application column by `columnNameScore`, and fits the column of an alternative with at
/// least 0.99. Slow, and plain enough to check by reading. The product never uses it; its own
/// matcher must give the same proposals.
std::vector<std::int32_t> matchColumns(std::vector<std::string> appColumns,
                                       std::vector<std::string> fileColumns,
                                       const Alternatives &alternatives);
std::vector<std::int32_t> matchColumns(std::vector<std::string> appColumns,
                                       std::vector<std::string> fileColumns);

} // namespace columnimport::reference
