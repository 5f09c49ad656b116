// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "matching/matchColumns.h"

namespace columnimport::reference {

/// The plain rule of `columnimport::matchColumns`: every file column is scored with every
/// application column by `columnNameScore`, with at least 0.99 for an alternative. Slow, but simple
/// enough to check by reading. The product never uses it; its own matcher must give the same
/// proposals.
std::vector<std::int32_t> matchColumns(std::vector<std::string> appColumns,
                                       std::vector<std::string> fileColumns,
                                       const Alternatives &alternatives = {});

} // namespace columnimport::reference
