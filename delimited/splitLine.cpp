// SPDX-License-Identifier: MIT

#include "delimited/splitLine.h"

#include <algorithm>
#include <cassert>

namespace columnimport {

namespace {

std::string_view trimmedRight(std::string_view text, std::string_view chars) {
    return text.substr(0, text.find_last_not_of(chars) + 1);
}

std::string_view trimmedLeft(std::string_view text, std::string_view chars) {
    const std::size_t first = text.find_first_not_of(chars);
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

/// Cuts the first field off `rest`, as `popField` does.
std::string_view popView(std::string_view &rest, std::string_view delimiter) {
    assert(!delimiter.empty());
    const std::size_t end = std::min(rest.find(delimiter), rest.size());
    const std::string_view field = trimmed(rest.substr(0, end));
    rest.remove_prefix(std::min(end + delimiter.size(), rest.size()));
    rest = trimmed(rest);
    return field;
}

} // namespace

std::string_view trimmed(std::string_view text) {
    return trimmedLeft(trimmedRight(text, blankChars), blankChars);
}

std::string trimRight(const std::string &text, const std::string &chars) {
    return std::string(trimmedRight(text, chars));
}

std::string trimLeft(const std::string &text, const std::string &chars) {
    return std::string(trimmedLeft(text, chars));
}

std::string popField(std::string &rest, const std::string &delimiter) {
    std::string_view left = rest;
    std::string field(popView(left, delimiter));
    rest = std::string(left);
    return field;
}

// The line is cut as views: rewriting the rest after each of 100,000 fields would cost the square
// of the line's length.
void splitLine(std::string line, std::vector<std::string> &fields, std::string delimiter) {
    fields.clear();
    std::string_view rest = trimmed(line);
    if (rest.empty()) {
        return;
    }
    while (rest.find(delimiter) != std::string_view::npos) {
        fields.emplace_back(popView(rest, delimiter));
    }
    fields.emplace_back(rest);
}

} // namespace columnimport
