// SPDX-License-Identifier: MIT

#include "matching/columnNameScore.h"

#include <algorithm>
#include <cassert>
#include <vector>

#include "matching/synonymTable.h"

namespace columnimport {

namespace {

/// How many bytes of `name` find an equal byte in `other`, each byte of `other` once.
std::size_t sharedBytes(const std::string &name, std::string other) {
    std::size_t shared = 0;
    for (const char byte : name) {
        const std::size_t found = other.find(byte);
        if (found != std::string::npos) {
            ++shared;
            other[found] = '#'; // no normalised name contains it
        }
    }
    return shared;
}

} // namespace

double columnNameScore(std::string a, std::string b) {
    if (a == b) {
        return 1.0;
    }
    if (areSynonyms(a, b)) {
        return 0.99;
    }
    if (std::min(a.size(), b.size()) < leastMeasuredLength) {
        return 0.0;
    }
    const std::int32_t run = longestCommonSubstringLength(a, b, static_cast<std::int32_t>(a.size()),
                                                          static_cast<std::int32_t>(b.size()));
    return blendedMeasure(sharedBytes(a, b), sharedBytes(b, a), static_cast<std::size_t>(run),
                          a.size(), b.size());
}

std::int32_t longestCommonSubstringLength(std::string a, std::string b, std::int32_t lengthA,
                                          std::int32_t lengthB) {
    assert(lengthA >= 0 && static_cast<std::size_t>(lengthA) <= a.size());
    assert(lengthB >= 0 && static_cast<std::size_t>(lengthB) <= b.size());
    const auto rows = static_cast<std::size_t>(lengthA) + 1;
    const auto columns = static_cast<std::size_t>(lengthB) + 1;
    // The length of the common run that ends after i bytes of `a` and j bytes of `b`.
    std::vector<std::vector<std::int32_t>> runs(rows, std::vector<std::int32_t>(columns, 0));
    std::int32_t longest = 0;
    for (std::size_t i = 1; i < rows; ++i) {
        for (std::size_t j = 1; j < columns; ++j) {
            runs[i][j] = a[i - 1] == b[j - 1] ? runs[i - 1][j - 1] + 1 : 0;
            longest = std::max(longest, runs[i][j]);
        }
    }
    return longest;
}

} // namespace columnimport
