// SPDX-License-Identifier: MIT

#include "matching/normalizeColumnName.h"

#include <cassert>

namespace columnimport {

namespace {

/// Ways to write a unit, and its normalised form. They apply in this order: a percent sign behind a
/// separator comes before one that stands alone.
constexpr struct {
    const char *written;
    const char *normalised;
} unitRules[] = {{" %", "_pct"}, {"_%", "_pct"}, {"%", "_pct"}, {"g/t", "gt"}};

/// The same in every locale that the host may have set: a Turkish one has another small letter for
/// I.
char toLower(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

bool isKept(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= '0' && byte <= '9');
}

} // namespace

std::string normalizeColumnName(std::string name) {
    for (char &byte : name) {
        byte = toLower(byte);
    }
    for (const auto &[written, normalised] : unitRules) {
        if (name.find(written) != std::string::npos) {
            name = replaceAll(std::move(name), written, normalised);
        }
    }
    for (char &byte : name) {
        byte = isKept(byte) ? byte : '_';
    }
    return name;
}

std::string replaceAll(std::string text, std::string search, std::string replacement) {
    assert(!search.empty());
    // Appending to a new text keeps the cost linear where replacing in place would move the tail
    // once for each occurrence.
    std::string result;
    std::size_t copied = 0;
    for (std::size_t found = text.find(search); found != std::string::npos;
         found = text.find(search, copied)) {
        result.append(text, copied, found - copied).append(replacement);
        copied = found + search.size();
    }
    return result.append(text, copied, std::string::npos);
}

} // namespace columnimport
