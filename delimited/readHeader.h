// SPDX-License-Identifier: MIT

#pragma once

#include "delimited/ByteOrderMark.h"
#include "delimited/likelyDelimiter.h"

#include <cstdint>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

namespace columnimport {

/// What came of the first line of a file.
enum class FirstLine : unsigned char {
    cut,         ///< it has columns
    undelimited, ///< it has one column, and nowhere the delimiter
    blank,       ///< it has nothing but blanks
    missing,     ///< the file has no bytes
    unreadable,  ///< the file can't be opened or read
};

/// The columns in the first line of a file, and why there are none, or only one.
struct Header {
    std::vector<std::string> columns;
    std::vector<std::int32_t> fields; ///< by column, as quotedFields has them
    FirstLine firstLine = FirstLine::unreadable;
    std::optional<LikelyDelimiter> likely; ///< of a line that is undelimited, if it has one
    std::error_code reason;                ///< the system's, if it has one for what is unreadable
};

/// The fields of the first line of the file `path` (UTF-8), cut at each byte `delimiter` and
/// stripped of all double quotes. Titles or data make no difference here.
///
/// Empty fields stay, as columns with an empty name. There are no columns if the file can't be
/// read, has no bytes or begins with a blank line.
///
///     first line  "Hole ID", From (m),,Au   with ','  gives  Hole ID | From (m) | (empty) | Au
Header readHeader(const std::string &path, char delimiter,
                  ByteOrderMark mark = ByteOrderMark::kept);

/// Why the file of `header` can't be read, in UTF-8; empty if it could be read.
std::string problemOf(const Header &header);

} // namespace columnimport
