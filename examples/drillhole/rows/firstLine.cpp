// SPDX-License-Identifier: MIT

#include "examples/drillhole/rows/firstLine.h"

#include <algorithm>
#include <fstream>

namespace drillhole {

namespace {

std::string_view trimmed(std::string_view text) {
    constexpr const char *blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(blanks);
    return first == std::string_view::npos
               ? std::string_view()
               : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string withoutQuotes(std::string_view text) {
    std::string name(text);
    name.erase(std::remove(name.begin(), name.end(), '"'), name.end());
    return name;
}

} // namespace

std::vector<std::string> namesShown(std::string_view line, char delimiter) {
    std::vector<std::string> names;
    std::string_view rest = trimmed(line);
    if (rest.empty()) {
        return names;
    }
    for (std::size_t end = rest.find(delimiter); end != std::string_view::npos;
         end = rest.find(delimiter)) {
        names.push_back(withoutQuotes(trimmed(rest.substr(0, end))));
        rest = trimmed(rest.substr(end + 1));
    }
    names.push_back(withoutQuotes(rest));
    return names;
}

std::string firstLineOf(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    std::string line;
    std::getline(file, line);
    return line.substr(line.compare(0, 3, "\xEF\xBB\xBF") == 0 ? 3 : 0);
}

} // namespace drillhole
