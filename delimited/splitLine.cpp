// SPDX-License-Identifier: MIT

#include "delimited/splitLine.h"

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

struct Cut {
    std::string_view field;
    std::string_view rest;
};

Cut cutFirstField(std::string_view text, std::string_view delimiter) {
    assert(!delimiter.empty());
    const std::size_t end = text.find(delimiter);
    if (end == std::string_view::npos) {
        return {trimmed(text), std::string_view()};
    }
    return {trimmed(text.substr(0, end)), trimmed(text.substr(end + delimiter.size()))};
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
    const Cut cut = cutFirstField(rest, delimiter);
    std::string field(cut.field);
    rest = std::string(cut.rest);
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
        const Cut cut = cutFirstField(rest, delimiter);
        fields.emplace_back(cut.field);
        rest = cut.rest;
    }
    fields.emplace_back(rest);
}

} // namespace columnimport
