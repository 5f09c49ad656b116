// SPDX-License-Identifier: MIT

#include "matching/areSynonyms.h"

#include <algorithm>

#include "matching/synonymTable.h"

namespace columnimport {

bool areSynonyms(std::string a, std::string b) {
    const auto lists = [](const SynonymClass &row, const std::string &word) {
        return std::find(row.listed.begin(), row.listed.end(), word) != row.listed.end();
    };
    return std::any_of(synonymTable.begin(), synonymTable.end(), [&](const SynonymClass &row) {
        return (row.head == a && lists(row, b)) || (row.head == b && lists(row, a));
    });
}

} // namespace columnimport
