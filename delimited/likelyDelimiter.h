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
    std::size_t count; ///< how often it stands in the line, outside quotation marks
};

/// The likely delimiter of a file's first line: tab, semicolon, bar or comma, whichever there is
/// most of. None if there is none of them, unless blanks are likely.
///
///  - What stands between double quotes does not count, unless the last one is never closed.
///  - A comma between two digits, and a comma or semicolon before a blank, is likely a part of a
///    title. It counts only where it is all there is.
///  - Of equally many, the first in the order above, since a title may hold a comma before it holds
///    a tab.
///  - Blanks are likely where there are three words or more that could all be titles of one word:
///    each begins with a letter or a number, and the letters are all capitals or all small.
///
///     Hole;Au, ppm;Tiefe 0,5   the semicolon, 2
///     HOLEID FROM TO           the blank, 2
///     Drill holes of the mine  none
std::optional<LikelyDelimiter> likelyDelimiter(std::string_view line);

/// The same for the first line of the file `path` (UTF-8), of which nothing else is read. None if
/// the file can't be read.
std::optional<LikelyDelimiter> likelyDelimiterOfFile(const std::string &path);

} // namespace columnimport
