// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace columnimport {

/// Whether the byte-order mark that some programs write before a UTF-8 file is kept.
enum class ByteOrderMark : unsigned char {
    kept,   ///< it is part of the first line
    dropped ///< it is skipped
};

/// Removes the mark from the first line of a file if `mark` asks for that.
inline void removeUnwantedMark(std::string &firstLine, ByteOrderMark mark) {
    constexpr const char *bytes = "\xEF\xBB\xBF";
    if (mark == ByteOrderMark::dropped && firstLine.compare(0, 3, bytes) == 0) {
        firstLine.erase(0, 3);
    }
}

} // namespace columnimport
