// SPDX-License-Identifier: MIT

#pragma once

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

} // namespace columnimport
