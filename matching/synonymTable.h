// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <string>
#include <vector>

namespace columnimport {

/// For each head word the words that it is a synonym of.
using SynonymTable = std::map<std::string, std::vector<std::string>>;

/// The synonyms of our field in normalised form, made anew by each call.
SynonymTable synonymTable();

/// Whether one of two normalised names is a head word of the `synonymTable` and the other is in its
/// list, in either order. Two words in one list are not synonyms, nor are two synonyms of a third
/// word.
///
///     areSynonyms("bhid", "holename") == true
///     areSynonyms("bhid", "holeid")   == false, both are only listed
bool areSynonyms(std::string a, std::string b);

/// The same by a table that the caller made, for many pairs in a row.
bool areSynonyms(const SynonymTable &table, const std::string &a, const std::string &b);

} // namespace columnimport
