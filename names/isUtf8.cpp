// SPDX-License-Identifier: MIT

#include "names/isUtf8.h"

#include <cstddef>
#include <cstdint>

namespace columnimport {

bool isUtf8(std::string_view bytes) {
    // Indexed by the number of bytes after the first: the leading bits of the first byte, and the
    // smallest character that needs as many bytes.
    constexpr struct {
        unsigned mask, lead;
        std::uint32_t least;
    } forms[] = {{0x80, 0x00, 0}, {0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, 0x10000}};
    while (!bytes.empty()) {
        const auto first = static_cast<unsigned char>(bytes.front());
        std::size_t following = 0;
        while (following < 4 && (first & forms[following].mask) != forms[following].lead) {
            ++following;
        }
        if (following == 4 || following >= bytes.size()) {
            return false;
        }
        std::uint32_t character = first & ~forms[following].mask;
        for (const char byte : bytes.substr(1, following)) {
            if ((static_cast<unsigned char>(byte) & 0xC0U) != 0x80) {
                return false;
            }
            character = character << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
        }
        if (character < forms[following].least || character > 0x10FFFF ||
            (character >= 0xD800 && character <= 0xDFFF)) {
            return false;
        }
        bytes.remove_prefix(following + 1);
    }
    return true;
}

} // namespace columnimport
