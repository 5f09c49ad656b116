// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

namespace columnimport {

/// Where the match of an application column came from.
enum class MatchOrigin : unsigned char {
    none,        ///< there is no match
    same,        ///< both names are the same once they are normalised
    synonym,     ///< the library knows the two names as synonyms
    alternative, ///< the source column is called as one of the host's alternatives
    similar,     ///< the names only resemble each other: a guess
    inOrder,     ///< the first line holds no titles, and columns are paired by position
    saved,       ///< the source has a column of the saved name
    byHand,      ///< the person chose it
    foreign,     ///< the person brought in a text from elsewhere that names no source column
};

/// The score of a match that is not a guess.
inline constexpr double noScore = -1.0;

/// Which source column an application column is matched to, and why.
struct ColumnMatch {
    std::int32_t position = -1; ///< among the source's columns; -1 for none of them
    MatchOrigin origin = MatchOrigin::none;
    double score = noScore; ///< of a similar name, as the matcher compared it
};

} // namespace columnimport
