// SPDX-License-Identifier: MIT

#include "drillhole/rows/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <memory>
#include <sstream>

#include <glib.h>

namespace drillhole {

std::string asUtf8(std::string_view bytes) {
    const auto length = static_cast<gssize>(bytes.size());
    if (g_utf8_validate(bytes.data(), length, nullptr) != FALSE) {
        return std::string(bytes);
    }
    gsize written = 0;
    char *text = g_convert(bytes.data(), length, "UTF-8", "CP1252", nullptr, &written, nullptr);
    if (text == nullptr) {
        text = g_convert(bytes.data(), length, "UTF-8", "ISO-8859-1", nullptr, &written, nullptr);
    }
    const std::unique_ptr<char, decltype(&g_free)> owner(text, &g_free);
    return {text, written};
}

std::string shortened(std::string_view bytes, long length) {
    std::string text = asUtf8(bytes);
    if (g_utf8_strlen(text.c_str(), -1) > length) {
        const char *end = g_utf8_offset_to_pointer(text.c_str(), length - 3);
        text.replace(static_cast<std::size_t>(end - text.c_str()), std::string::npos, "...");
    }
    return text;
}

std::string quoted(std::string_view text) {
    return '"' + shortened(text, 24) + '"';
}

std::string_view trimmed(std::string_view text) {
    for (const std::string_view blank : {" ", "\t", "\u00a0"}) {
        if (text.size() >= blank.size() && text.substr(0, blank.size()) == blank) {
            return trimmed(text.substr(blank.size()));
        }
        if (text.size() >= blank.size() && text.substr(text.size() - blank.size()) == blank) {
            return trimmed(text.substr(0, text.size() - blank.size()));
        }
    }
    return text;
}

std::vector<std::string> listOf(const std::string &text) {
    std::vector<std::string> words;
    std::istringstream parts(text);
    for (std::string word; std::getline(parts, word, ',');) {
        if (!trimmed(word).empty()) {
            words.emplace_back(trimmed(word));
        }
    }
    return words;
}

std::string inQuotes(std::string_view text, char quote, char escape) {
    std::string quoted(1, quote);
    for (const char byte : text) {
        quoted.append(byte == quote || byte == escape ? 1 : 0, escape);
        quoted += byte;
    }
    return quoted += quote;
}

std::string_view numberPart(std::string_view text) {
    constexpr const char *others = " \t\xC2\xA0\xB0";
    const std::size_t first = std::min(text.find_first_not_of(others), text.size());
    return text.substr(first, text.find_last_not_of(others) + 1 - first);
}

bool isWhole(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

std::optional<double> parseNumber(std::string_view text) {
    if (text.size() > 1 && text.front() == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    double number = 0;
    const char *end = text.data() + text.size();
    const auto [stop, failure] = std::from_chars(text.data(), end, number);
    if (failure != std::errc() || stop != end || !std::isfinite(number)) {
        return std::nullopt;
    }
    return number;
}

std::string digitsOf(double number) {
    std::array<char, 32> digits{};
    return {digits.begin(), std::to_chars(digits.begin(), digits.end(), number).ptr};
}

std::string grouped(std::size_t count) {
    std::string digits = std::to_string(count);
    for (auto place = static_cast<std::ptrdiff_t>(digits.size()) - 3; place > 0; place -= 3) {
        digits.insert(static_cast<std::size_t>(place), 1, ',');
    }
    return digits;
}

std::string countOf(std::size_t count, const std::string &noun) {
    return grouped(count) + ' ' + noun + (count == 1 ? "" : "s");
}

} // namespace drillhole
