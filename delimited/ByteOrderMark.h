// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace columnimport {

/// How a byte-order mark at the start of a UTF-8 file is treated.
enum class ByteOrderMark : unsigned char {
    kept,   ///< it is a part of the first line
    dropped ///< it is no part of anything
};

/// Removes a byte-order mark from the first line of a file if `mark` asks for it.
inline void removeUnwantedMark(std::string &firstLine, ByteOrderMark mark) {
    constexpr const char *bytes = "\xEF\xBB\xBF";
    if (mark == ByteOrderMark::dropped && firstLine.compare(0, 3, bytes) == 0) {
        firstLine.erase(0, 3);
    }
}

} // namespace columnimport
