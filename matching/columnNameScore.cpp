#include "matching/columnNameScore.h"

#include <cassert>
#include <string_view>

#include "matching/areSynonyms.h"
#include "matching/blendedMeasure.h"
#include "matching/longestRun.h"

namespace columnimport {

namespace {

constexpr unsigned char mark = '#';

/// The bytes of `name` that find an equal byte in `other`, each byte of `other` once. A found one
/// leaves a '#' behind, which a '#' of `name` finds any number of times; normalised names have
/// none.
std::size_t sharedBytes(std::string_view name, std::string_view other) {
    // Only the entries of bytes that occur are ever read, and clearing all would cost more.
    std::size_t left[256];
    for (const char byte : name) {
        left[static_cast<unsigned char>(byte)] = 0;
    }
    left[mark] = 0;
    for (const char byte : other) {
        left[static_cast<unsigned char>(byte)] = 0;
    }
    for (const char byte : other) {
        ++left[static_cast<unsigned char>(byte)];
    }
    std::size_t shared = 0;
    bool marked = left[mark] != 0;
    for (const char byte : name) {
        std::size_t &same = left[static_cast<unsigned char>(byte)];
        const bool found = byte == mark ? marked : same != 0;
        same -= found && same != 0 ? 1 : 0;
        shared += found ? 1 : 0;
        marked |= found;
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
    if (a.size() < 3 || b.size() < 3) {
        return 0.0;
    }
    const std::size_t sharedA = sharedBytes(a, b);
    // Each finds as many as the other, but for a '#'.
    const bool alike = a.find(mark) == std::string::npos && b.find(mark) == std::string::npos;
    const std::size_t sharedB = alike ? sharedA : sharedBytes(b, a);
    return blendedMeasure(sharedA, sharedB, longestRun(a, b), a.size(), b.size());
}

std::int32_t longestCommonSubstringLength(std::string a, std::string b, std::int32_t lengthA,
                                          std::int32_t lengthB) {
    assert(lengthA >= 0 && static_cast<std::size_t>(lengthA) <= a.size());
    assert(lengthB >= 0 && static_cast<std::size_t>(lengthB) <= b.size());
    return static_cast<std::int32_t>(
        longestRun(std::string_view(a).substr(0, static_cast<std::size_t>(lengthA)),
                   std::string_view(b).substr(0, static_cast<std::size_t>(lengthB))));
}

} // namespace columnimport
