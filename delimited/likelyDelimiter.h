// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace columnimport {

/// The delimiter that a line of a file was likely written with.
struct LikelyDelimiter {
    char delimiter;
    std::size_t count; ///< of its occurrences outside double quotes
};

/// The likely delimiter of a file's first line: the most frequent of tab, semicolon, bar and comma.
/// Without any of them, the blank if blanks are likely, else none.
///
///  - Text between double quotes does not count, unless a quote is never closed.
///  - A comma between two digits, and a comma or semicolon before a blank, is likely part of a
///    title. It only breaks ties.
///  - Of equally many, the first in the order above wins: titles contain commas sooner than tabs.
///  - Blanks are likely between three or more words that could all be titles: each begins with a
///    letter or a number, and the first letters are all capital or all small.
///
///     Hole;Au, ppm;Tiefe 0,5   the semicolon, 2
///     HOLEID FROM TO           the blank, 2
///     Drill holes of the mine  none
std::optional<LikelyDelimiter> likelyDelimiter(std::string_view line);

/// The same for the first line of the file `path` (UTF-8); reads no further. None if the file can't
/// be read.
std::optional<LikelyDelimiter> likelyDelimiterOfFile(const std::string &path);

} // namespace columnimport
