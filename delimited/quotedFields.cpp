// SPDX-License-Identifier: MIT

#include "delimited/quotedFields.h"

#include "delimited/splitLine.h"

#include <algorithm>
#include <string_view>

namespace columnimport {

namespace {

bool isBlank(std::string_view text) {
    return trimmed(text).empty();
}

bool holdsReturn(std::string_view text) {
    return text.find('\r') != std::string_view::npos;
}

/// The position of the double quote that closes the one before `begin`, or npos.
std::size_t closingQuote(std::string_view line, std::size_t begin) {
    std::size_t quote = line.find('"', begin);
    while (quote != std::string_view::npos && line.substr(quote + 1, 1) == "\"") {
        quote = line.find('"', quote + 2);
    }
    return quote;
}

/// A field as readers see it, up to its delimiter or the end of the line, and what they agree on.
struct QuotedField {
    std::size_t end;
    bool beginIsAgreed = true;
    bool insideIsAgreed = true; ///< that the field goes on after a delimiter
    bool endIsAgreed = true;
};

QuotedField fieldAt(std::string_view line, std::size_t begin, char delimiter) {
    const auto delimiterFrom = [=](std::size_t place) {
        return std::min(line.find(delimiter, place), line.size());
    };
    QuotedField field{delimiterFrom(begin)};
    const std::string_view plain = line.substr(begin, field.end - begin);
    const std::size_t first = std::min(plain.find_first_not_of(blankChars), plain.size());
    const bool isQuoted = delimiter != '"' && plain.substr(first, 1) == "\"";
    if (!isQuoted || first > 0) {
        field.beginIsAgreed = !holdsReturn(plain) && !(delimiter == ' ' && isBlank(plain));
    }
    if (!isQuoted) {
        return field;
    }
    const std::size_t closing = closingQuote(line, begin + first + 1);
    if (closing == std::string_view::npos) {
        field.end = line.size();
        field.insideIsAgreed = false;
        return field;
    }
    field.end = delimiterFrom(closing);
    const std::string_view behind = line.substr(closing + 1, field.end - closing - 1);
    field.beginIsAgreed = field.beginIsAgreed && !holdsReturn(behind);
    field.insideIsAgreed = first == 0;
    field.endIsAgreed = isBlank(behind);
    return field;
}

} // namespace

std::vector<std::int32_t> quotedFields(const std::string &sourceLine, char delimiter) {
    const std::string line = trimRight(sourceLine, blankChars);
    std::vector<std::int32_t> numbers;
    if (line.empty()) {
        return numbers;
    }
    // The cut trims the rest of the line, so it drops the blank fields between blank delimiters.
    const bool dropsBlank = isBlank(std::string_view(&delimiter, 1));
    bool isAgreed = true;
    std::size_t begin = 0;
    for (std::int32_t number = 0; begin <= line.size(); ++number) {
        const QuotedField field = fieldAt(line, begin, delimiter);
        isAgreed = isAgreed && field.beginIsAgreed;
        while (begin <= field.end) {
            const std::size_t end = std::min(line.find(delimiter, begin), field.end);
            if (!dropsBlank || !isBlank(std::string_view(line).substr(begin, end - begin))) {
                numbers.push_back(isAgreed ? number : -1);
            }
            isAgreed = isAgreed && (end == field.end || field.insideIsAgreed);
            begin = end + 1;
        }
        isAgreed = isAgreed && field.endIsAgreed;
    }
    return numbers;
}

} // namespace columnimport
