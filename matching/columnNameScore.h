// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace columnimport {

/// How well two normalised names fit; larger is better, and their order makes no difference. This
/// is the plain rule: `castVotes` gives the same scores without trying every pair, and tests
/// compare the two.
///
/// 1.0 for equal names, 0.99 for synonyms, 0.0 for other pairs with a name under three bytes.
/// Any other pair is measured by what the names share, in proportion to each name's length: half by
/// the bytes that occur in both, in any order, half by one less than the longest run of bytes that
/// occurs in both. The measure lies from -1/6 up to, but not including, 1.0.
///
///     columnNameScore("au_gt", "ag_gt") is 0.6: four shared bytes and a run of three
double columnNameScore(std::string a, std::string b);

/// The length of the longest run of bytes that occurs in both texts, 0 if they share no byte
/// value. The last two arguments are the lengths of the texts in bytes. Takes time and memory in
/// proportion to the product of the lengths.
std::int32_t longestCommonSubstringLength(std::string a, std::string b, std::int32_t lengthA,
                                          std::int32_t lengthB);

/// Shorter names are not measured.
inline constexpr std::size_t leastMeasuredLength = 3;

/// The measure of two different names of `lengthA` and `lengthB` bytes, of which `sharedA` and
/// `sharedB` bytes occur in the other one and whose longest common run has `run` bytes.
///
///     blendedMeasure(4, 4, 3, 5, 5) is 0.6, for au_gt and ag_gt
inline double blendedMeasure(std::size_t sharedA, std::size_t sharedB, std::size_t run,
                             std::size_t lengthA, std::size_t lengthB) {
    const double runStep = static_cast<double>(run) - 1.0;
    const auto part = [runStep](std::size_t shared, std::size_t length) {
        const auto bytes = static_cast<double>(length);
        return 0.5 * static_cast<double>(shared) / bytes + 0.5 * runStep / bytes;
    };
    return 0.5 * (part(sharedA, lengthA) + part(sharedB, lengthB));
}

} // namespace columnimport
