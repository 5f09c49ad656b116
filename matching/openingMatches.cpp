// SPDX-License-Identifier: MIT

#include "matching/openingMatches.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

namespace columnimport {

namespace {

std::vector<std::int32_t> pairedInOrder(std::size_t appCount, std::size_t sourceCount) {
    std::vector<std::int32_t> positions(appCount, -1);
    for (std::size_t app = 0; app < appCount && app < sourceCount; ++app) {
        positions[app] = static_cast<std::int32_t>(app);
    }
    return positions;
}

std::vector<std::int32_t> foundAgain(std::vector<std::string> &savedMatches,
                                     const std::vector<std::string> &titles) {
    std::unordered_map<std::string_view, std::int32_t> firstOfName;
    for (const std::string &title : titles) {
        firstOfName.emplace(title, static_cast<std::int32_t>(&title - titles.data()));
    }
    std::vector<std::int32_t> positions;
    positions.reserve(savedMatches.size());
    for (std::string &match : savedMatches) {
        const auto found = match.empty() ? firstOfName.end() : firstOfName.find(match);
        if (found == firstOfName.end()) {
            match.clear();
        }
        positions.push_back(found == firstOfName.end() ? -1 : found->second);
    }
    return positions;
}

} // namespace

std::vector<std::string> columnNames(const std::vector<std::string> &titles, bool holdsTitles) {
    if (holdsTitles) {
        return titles;
    }
    std::vector<std::string> names;
    names.reserve(titles.size());
    for (std::size_t number = 1; number <= titles.size(); ++number) {
        names.push_back("Column" + std::to_string(number));
    }
    return names;
}

bool holdsAName(const std::vector<std::string> &savedMatches) {
    return std::any_of(savedMatches.begin(), savedMatches.end(),
                       [](const std::string &match) { return !match.empty(); });
}

std::vector<std::int32_t> openingMatches(const std::vector<std::string> &appColumns,
                                         const Alternatives &alternatives,
                                         const std::vector<std::string> &titles, bool holdsTitles,
                                         std::vector<std::string> *savedMatches) {
    if (!holdsTitles) {
        return pairedInOrder(appColumns.size(), titles.size());
    }
    return savedMatches != nullptr ? foundAgain(*savedMatches, titles)
                                   : matchColumns(appColumns, titles, alternatives);
}

} // namespace columnimport
