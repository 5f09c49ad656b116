// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include "matching/matchColumns.h"
#include "matching/vote.h"

namespace columnimport {

/// The votes of the file columns, in their order, as if each were scored with every application
/// column: each goes to the first of those with the best `columnNameScore`, or with an alternative
/// of 0.99, or to none if no score is above the acceptance threshold. All names are normalised.
///
/// All that makes matching fast is behind this function. Work that belongs to one name is done once
/// for that name. One look-up finds a file column that equals an application column, or is a
/// synonym or an alternative of one (`FitTable`). The others are compared with all application
/// columns side by side (`ShortNameIndex`), and only those whose bound reaches the best score so
/// far are measured (`offerMeasured`). Names too long for the index are measured one by one behind
/// simpler bounds.
std::vector<Vote> castVotes(const std::vector<std::string> &appColumns,
                            const std::vector<std::string> &fileColumns,
                            const Alternatives &alternatives);

} // namespace columnimport
