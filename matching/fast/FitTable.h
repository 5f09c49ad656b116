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

/// Finds with one look-up the application column that a file column equals, or is a synonym or an
/// alternative of.
class FitTable {
public:
    /// All names are normalised, and must outlive the table.
    FitTable(const std::vector<std::string> &appColumns, const Alternatives &alternatives);
    FitTable(const FitTable &) = delete;

    /// The vote of a file column that equals an application column, or is a synonym or an
    /// alternative of one; a vote for none if there is no such column. A synonym is too short to
    /// measure 0.99 with any name; an alternative may not be.
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
    std::unordered_map<std::string_view, Fit> m_fits; ///< by word
};

} // namespace columnimport
