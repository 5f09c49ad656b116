// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace columnimport {

/// What becomes of the mark that some programs put in front of a file in UTF-8.
enum class ByteOrderMark : unsigned char {
    kept,   ///< it is a part of the first line
    dropped ///< it is no part of anything
};

/// Takes the mark off the first line of a file, if it has one and is to lose it.
inline void treatMark(std::string &firstLine, ByteOrderMark mark) {
    constexpr const char *bytes = "\xEF\xBB\xBF";
    if (mark == ByteOrderMark::dropped && firstLine.compare(0, 3, bytes) == 0) {
        firstLine.erase(0, 3);
    }
}

} // namespace columnimport
