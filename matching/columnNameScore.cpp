// SPDX-License-Identifier: MIT

#include "matching/columnNameScore.h"

#include <algorithm>
#include <cassert>
#include <string_view>

#include "matching/areSynonyms.h"
#include "matching/blendedMeasure.h"
#include "matching/longestRun.h"

namespace columnimport {

namespace {

/// How many bytes of `name` find an equal byte in `other`, each byte of `other` once.
std::size_t sharedBytes(std::string_view name, std::string other) {
    std::size_t shared = 0;
    for (const char byte : name) {
        const std::size_t found = other.find(byte);
        if (found != std::string::npos) {
            ++shared;
            other[found] = '#'; // which no normalised name has
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
    return blendedMeasure(sharedBytes(a, b), sharedBytes(b, a), longestRunAbove(0, a, b), a.size(),
                          b.size());
}

std::int32_t longestCommonSubstringLength(std::string a, std::string b, std::int32_t lengthA,
                                          std::int32_t lengthB) {
    assert(lengthA >= 0 && static_cast<std::size_t>(lengthA) <= a.size());
    assert(lengthB >= 0 && static_cast<std::size_t>(lengthB) <= b.size());
    return static_cast<std::int32_t>(
        longestRunAbove(0, std::string_view(a).substr(0, static_cast<std::size_t>(lengthA)),
                        std::string_view(b).substr(0, static_cast<std::size_t>(lengthB))));
}

} // namespace columnimport
