// SPDX-License-Identifier: MIT

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

/// For each application column the place of its field in a row of the file, or -1.
///
/// `titles` is the first line, cut as the dialog cut it. Two columns of the same name can't be told
/// apart by it: the first is taken.
std::vector<int> placesOf(const std::vector<std::string> &matches,
                          const std::vector<std::string> &titles, bool firstLineHoldsTitles) {
    std::vector<int> places;
    for (const std::string &match : matches) {
        if (match.empty()) {
            places.push_back(-1);
        } else if (!firstLineHoldsTitles) {
            // "Column1" is the first field.
            places.push_back(std::atoi(match.c_str() + sizeof("Column") - 1) - 1);
        } else {
            const auto found = std::find(titles.begin(), titles.end(), match);
            places.push_back(found == titles.end() ? -1 : static_cast<int>(found - titles.begin()));
        }
    }
    return places;
}
