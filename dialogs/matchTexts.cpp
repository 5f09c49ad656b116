// SPDX-License-Identifier: MIT

#include "dialogs/matchTexts.h"

#include "matching/matchColumns.h"
#include "names/notUsed.h"

#include <string_view>
#include <unordered_set>

namespace columnimport {

std::string positionalName(std::size_t number) {
    return "Column" + std::to_string(number);
}

std::vector<std::string> positionalMatchTexts(std::size_t appCount, std::size_t fileCount) {
    std::vector<std::string> texts;
    texts.reserve(appCount);
    for (std::size_t row = 0; row < appCount; ++row) {
        texts.push_back(row < fileCount ? positionalName(row + 1) : notUsed);
    }
    return texts;
}

void dropUnknownMatches(std::vector<std::string> &savedMatches,
                        const std::vector<std::string> &fileSchema) {
    const std::unordered_set<std::string_view> known(fileSchema.begin(), fileSchema.end());
    for (std::string &match : savedMatches) {
        if (match.empty() || known.count(match) == 0) {
            match = notUsed;
        }
    }
}

std::vector<std::string> proposedMatchTexts(const std::vector<std::string> &appColumns,
                                            const std::vector<std::string> &fileSchema) {
    std::vector<std::string> texts;
    texts.reserve(appColumns.size());
    for (const std::int32_t fileColumn : matchColumns(appColumns, fileSchema)) {
        texts.push_back(fileColumn < 0 ? notUsed
                                       : fileSchema[static_cast<std::size_t>(fileColumn)]);
    }
    return texts;
}

} // namespace columnimport
