#pragma once

#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace columnimport {

/// The number of byte values that a normalised name can hold.
inline constexpr std::size_t symbolCount = 37;

namespace detail {

constexpr std::array<std::uint8_t, 256> makeSymbolTable() {
    constexpr std::string_view bytes = "abcdefghijklmnopqrstuvwxyz0123456789_";
    static_assert(bytes.size() == symbolCount);
    std::array<std::uint8_t, 256> table{};
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        table[static_cast<unsigned char>(bytes[i])] = static_cast<std::uint8_t>(i);
    }
    return table;
}

inline constexpr std::array<std::uint8_t, 256> symbolTable = makeSymbolTable();

} // namespace detail

/// The place of a normalised name's byte among the `symbolCount` that there are.
inline std::uint8_t symbolOf(char byte) {
    assert((byte >= 'a' && byte <= 'z') || (byte >= '0' && byte <= '9') || byte == '_');
    return detail::symbolTable[static_cast<unsigned char>(byte)];
}

} // namespace columnimport
