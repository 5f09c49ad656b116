// SPDX-License-Identifier: MIT

#include "delimited/likelyDelimiter.h"

#include "delimited/SourceFile.h"
#include "delimited/splitLine.h"

#include <algorithm>
#include <array>
#include <utility>

namespace columnimport {

namespace {

bool isDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

/// Whether a delimiter at this position reads like punctuation.
bool isLikelyText(std::string_view line, std::size_t position) {
    const char before = position > 0 ? line[position - 1] : '\0';
    const char after = position + 1 < line.size() ? line[position + 1] : '\0';
    return line[position] == ',' ? after == ' ' || (isDigit(before) && isDigit(after))
                                 : line[position] == ';' && after == ' ';
}

/// How often a delimiter occurs without reading like punctuation, and in all. The greatest wins.
using Tally = std::pair<std::size_t, std::size_t>;

/// The number of words, or 0 if one of them can't be a title.
std::size_t titlesOfOneWord(std::string_view line) {
    std::size_t words = 0;
    bool hasCapital = false;
    bool hasSmall = false;
    bool hasOther = false;
    char previous = ' ';
    for (const char byte : line) {
        if (byte == '"') {
            continue;
        }
        if (previous == ' ' && byte != ' ') {
            ++words;
            const bool isCapital = byte >= 'A' && byte <= 'Z';
            const bool isSmall = byte >= 'a' && byte <= 'z';
            const bool isNumber = isDigit(byte) || byte == '-' || byte == '.';
            const bool isForeign = static_cast<unsigned char>(byte) >= 0x80;
            hasCapital = hasCapital || isCapital;
            hasSmall = hasSmall || isSmall;
            hasOther = hasOther || !(isCapital || isSmall || isNumber || isForeign);
        }
        previous = byte;
    }
    return hasOther || (hasCapital && hasSmall) ? 0 : words;
}

} // namespace

std::optional<LikelyDelimiter> likelyDelimiter(std::string_view line) {
    constexpr std::array delimiters = {'\t', ';', '|', ',', ' '};
    constexpr std::size_t leastWords = 3;
    line = trimmed(line);
    const bool areQuotesPaired = std::count(line.begin(), line.end(), '"') % 2 == 0;
    bool isQuoted = false;
    std::array<Tally, delimiters.size()> tallies{};
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (areQuotesPaired && line[i] == '"') {
            isQuoted = !isQuoted;
        }
        const auto *const found = std::find(delimiters.begin(), delimiters.end(), line[i]);
        if (!isQuoted && found != delimiters.end()) {
            Tally &tally = tallies[static_cast<std::size_t>(found - delimiters.begin())];
            tally.first += isLikelyText(line, i) ? 0 : 1;
            ++tally.second;
        }
    }
    const std::size_t blanks = tallies.back().second;
    const auto *const most = std::max_element(tallies.begin(), tallies.end() - 1);
    if (most->second > 0) {
        return LikelyDelimiter{delimiters[static_cast<std::size_t>(most - tallies.begin())],
                               most->second};
    }
    if (blanks > 0 && titlesOfOneWord(line) >= leastWords) {
        return LikelyDelimiter{' ', blanks};
    }
    return std::nullopt;
}

std::optional<LikelyDelimiter> likelyDelimiterOfFile(const std::string &path) {
    return likelyDelimiter(SourceFile(path).readLine());
}

} // namespace columnimport
