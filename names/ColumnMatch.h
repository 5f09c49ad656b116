// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace columnimport {

/// Where the match of an application column comes from, with the values of the C header.
enum class MatchOrigin : signed char {
    none = -1,   ///< there is no match
    same = 1,    ///< both names are equal once normalised
    synonym,     ///< the names are synonyms of the field
    alternative, ///< one of the host's alternatives names the source column
    similar,     ///< the names only resemble each other: a guess
    inOrder,     ///< columns are paired by position, since the first line holds no titles
    saved,       ///< the source has a column of the saved name
    byHand,      ///< the person chose it
    foreign,     ///< the person dropped or pasted a text that names no source column
};

/// The score of a match that is not a guess.
inline constexpr double noScore = -1.0;

/// The source column that an application column is matched to, and why.
struct ColumnMatch {
    std::int32_t position = -1; ///< of the source column; -1 if there is none
    MatchOrigin origin = MatchOrigin::none;
    double score = noScore; ///< of a similar name, as the matcher measured it
};

/// What an application column is matched to: a source column; a name from another program, which
/// has no position; or nothing.
struct SourceMatch : ColumnMatch {
    std::string name;

    bool isNone() const { return position < 0 && name.empty(); }
};

/// The match text of an application column without a match.
inline constexpr const char *notUsed = "Not used";

/// The name of a source column in an import: its title, or without titles "Column1" at position 0,
/// "Column2" at 1 and so on.
inline std::string columnName(const std::vector<std::string> &titles, bool holdsTitles,
                              std::size_t position) {
    return holdsTitles ? titles[position] : "Column" + std::to_string(position + 1);
}

} // namespace columnimport
