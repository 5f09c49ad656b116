// SPDX-License-Identifier: MIT

#pragma once

#include "delimited/likelyDelimiter.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

namespace columnimport {

/// Whether the byte-order mark that some programs write before a UTF-8 file is kept.
enum class ByteOrderMark : unsigned char {
    kept,   ///< it is part of the first line
    dropped ///< it is skipped
};

/// What the first line of a file turned out to be.
enum class FirstLine : unsigned char {
    cut,         ///< it has columns
    undelimited, ///< it has one column, since it lacks the delimiter
    blank,       ///< it has only blanks
    missing,     ///< the file has no bytes
    unreadable,  ///< the file can't be opened or read
};

/// The columns that the first line of a file names, and why there are none or only one.
struct Header {
    std::vector<std::string> columns;
    std::vector<std::int32_t> fields; ///< by column, from `quotedFields`
    FirstLine firstLine = FirstLine::unreadable;
    std::optional<LikelyDelimiter> likely; ///< of an undelimited line, if any
    std::error_code reason;                ///< the system's, for an unreadable file
};

/// The fields of the first line of the file `path` (UTF-8), titles or data, cut at each byte
/// `delimiter` and stripped of all double quotes.
///
/// Empty fields stay, as columns with an empty name. There are no columns if the file can't be
/// read, has no bytes or begins with a blank line.
///
///     first line  "Hole ID", From (m),,Au   with ','  gives  Hole ID | From (m) | (empty) | Au
Header readHeader(const std::string &path, char delimiter,
                  ByteOrderMark mark = ByteOrderMark::kept);

/// Why the file of `header` can't be read, in UTF-8; empty if it could be read.
std::string problemOf(const Header &header);

/// The most lines of a preview.
inline constexpr int previewLines = 10;

/// The first ten lines of the file `path` (UTF-8) as raw bytes, each followed by one line feed. Of
/// a longer line, the first `most` bytes.
///
/// A file that ends with a line feed before its tenth line gives one more, empty line; a file that
/// can't be opened gives ten empty ones.
std::string readPreview(const std::string &path, std::size_t most = std::string::npos,
                        ByteOrderMark mark = ByteOrderMark::kept);

} // namespace columnimport
