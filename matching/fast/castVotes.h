// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include "matching/matchColumns.h"
#include "matching/vote.h"

namespace columnimport {

/// The votes of the file columns, in order, as if each were scored with every application column by
/// `columnNameScore`, with at least 0.99 for an alternative. Each goes to the first column with the
/// best score, or to none if no score is above the acceptance threshold. All names are normalised.
///
/// This is the entry point of the fast matcher. It prepares each name once. It finds a file column
/// that equals an application column, or is a synonym or an alternative of one, by one look-up
/// (`KnownWords`). It compares the others with all application columns side by side
/// (`ShortNameIndex`), and measures only those whose bound reaches the best score so far
/// (`offerMeasured`). Names too long for the index are measured one by one, behind simpler bounds.
std::vector<Vote> castVotes(const std::vector<std::string> &appColumns,
                            const std::vector<std::string> &fileColumns,
                            const Alternatives &alternatives);

} // namespace columnimport
