// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "matching/matchColumns.h"
#include "matching/synonymTable.h"
#include "matching/vote.h"

namespace columnimport {

/// Finds the application column that a file column equals, or is a synonym or an alternative of,
/// with one look-up, however many there are.
class FitTable {
public:
    /// Normalised names, which must outlive the table.
    FitTable(const std::vector<std::string> &appColumns, const Alternatives &alternatives);
    FitTable(const FitTable &) = delete;

    /// The vote of a file column that equals an application column, or is a synonym or an
    /// alternative of one; a vote for none if there is no such column. A file column with a synonym
    /// is too short for a measure of 0.99, one with an alternative may not be.
    Vote find(std::string_view fileColumn) const;

private:
    static constexpr std::int32_t none = INT32_MAX;

    /// The first application column of each kind.
    struct Fit {
        std::int32_t equal = none;
        std::int32_t synonym = none;
    };

    void link(std::string_view appColumn, std::string_view synonym);

    const SynonymTable m_synonyms = synonymTable();
    std::unordered_map<std::string_view, Fit> m_fits; ///< by words of the lists and the synonyms
};

} // namespace columnimport
