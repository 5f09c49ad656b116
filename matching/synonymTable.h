// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <string>
#include <vector>

namespace columnimport {

/// Each head word with its synonyms.
using SynonymTable = std::map<std::string, std::vector<std::string>>;

/// The synonyms of our field, normalised. Each call makes a new table.
SynonymTable synonymTable();

/// Whether one of two normalised names is a head word of the `synonymTable` and the other one of
/// its listed words. Their order makes no difference. Two words with a common head, or with any
/// other synonym in common, are not synonyms for that reason.
///
///     areSynonyms("bhid", "holename") == true
///     areSynonyms("bhid", "holeid")   == false, both are only listed
bool areSynonyms(std::string a, std::string b);

/// The same by a table that the caller made, for many pairs in a row.
bool areSynonyms(const SynonymTable &table, const std::string &a, const std::string &b);

} // namespace columnimport
