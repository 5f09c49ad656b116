#include "matching/normalizeColumnName.h"

#include <algorithm>
#include <cassert>
#include <cctype>

namespace columnimport {

namespace {

/// Every percent sign, with one blank or underscore in front of it, becomes "_pct".
std::string spellOutPercent(const std::string &name) {
    std::string result;
    result.reserve(name.size() +
                   3 * static_cast<std::size_t>(std::count(name.begin(), name.end(), '%')));
    std::size_t copied = 0;
    for (std::size_t found = name.find('%'); found != std::string::npos;
         found = name.find('%', copied)) {
        const bool separated = found > 0 && (name[found - 1] == ' ' || name[found - 1] == '_');
        result.append(name, copied, found - copied - (separated ? 1 : 0)).append("_pct");
        copied = found + 1;
    }
    return result.append(name, copied, std::string::npos);
}

bool isKept(char byte) {
    const auto lies = [byte](char first, char last) {
        return static_cast<unsigned char>(byte - first) <= last - first;
    };
    // Without a branch: in a column name nothing can be guessed of the next byte.
    return static_cast<int>(lies('a', 'z')) + static_cast<int>(lies('0', '9')) != 0;
}

} // namespace

std::string normalizeColumnName(std::string name) {
    bool hasPercent = false;
    bool hasSlash = false;
    for (char &byte : name) {
        byte = static_cast<char>(std::tolower(static_cast<unsigned char>(byte)));
        hasPercent |= byte == '%';
        hasSlash |= byte == '/';
    }
    if (hasPercent) {
        name = spellOutPercent(name);
    }
    if (hasSlash) {
        name = replaceAll(std::move(name), "g/t", "gt");
    }
    for (char &byte : name) {
        byte = isKept(byte) ? byte : '_';
    }
    return name;
}

std::string replaceAll(std::string text, std::string search, std::string replacement) {
    assert(!search.empty());
    std::size_t found = text.find(search);
    if (found == std::string::npos) {
        return text;
    }
    // Appending to a new text keeps the cost linear where replacing in place would move the tail
    // once for each occurrence.
    std::string result;
    result.reserve(text.size());
    std::size_t copied = 0;
    while (found != std::string::npos) {
        result.append(text, copied, found - copied).append(replacement);
        copied = found + search.size();
        found = text.find(search, copied);
    }
    return result.append(text, copied, std::string::npos);
}

} // namespace columnimport
