// SPDX-License-Identifier: MIT

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

/// The index of each application column's field in a row of the file, or -1.
///
/// `titles` is the first line, split as the dialog splits it. Of two columns with the same name,
/// the first is taken.
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
