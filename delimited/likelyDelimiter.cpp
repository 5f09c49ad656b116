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

/// Calls `visit` with the position of each byte outside double quotes.
template <typename Visit>
void forEachUnquoted(std::string_view line, Visit visit) {
    const bool arePaired = std::count(line.begin(), line.end(), '"') % 2 == 0;
    bool isQuoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (arePaired && line[i] == '"') {
            isQuoted = !isQuoted;
        } else if (!isQuoted) {
            visit(i);
        }
    }
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
    constexpr std::array usual = {'\t', ';', '|', ','};
    constexpr std::size_t leastWords = 3;
    line = trimmed(line);
    std::array<Tally, usual.size()> tallies{};
    std::size_t blanks = 0;
    forEachUnquoted(line, [&](std::size_t position) {
        blanks += line[position] == ' ' ? 1 : 0;
        const auto *const found = std::find(usual.begin(), usual.end(), line[position]);
        if (found != usual.end()) {
            Tally &tally = tallies[static_cast<std::size_t>(found - usual.begin())];
            tally.first += isLikelyText(line, position) ? 0 : 1;
            ++tally.second;
        }
    });
    const auto *const most = std::max_element(tallies.begin(), tallies.end());
    if (most->second > 0) {
        return LikelyDelimiter{usual[static_cast<std::size_t>(most - tallies.begin())],
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
