// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// The matcher as its rules are told: slow, and plain enough to be checked by reading. The product
/// never uses it; the fast matcher must give the same answers, to the last bit of each score.
namespace columnimport::reference {

std::string normalizeColumnName(std::string name);
std::string replaceAll(std::string text, std::string search, std::string replacement);
bool areSynonyms(std::string a, std::string b);
double columnNameScore(std::string a, std::string b);
std::int32_t longestCommonSubstringLength(std::string a, std::string b, std::int32_t lengthA,
                                          std::int32_t lengthB);
std::vector<std::int32_t> matchColumns(std::vector<std::string> appColumns,
                                       std::vector<std::string> fileColumns);

} // namespace columnimport::reference
