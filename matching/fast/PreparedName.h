// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace columnimport {

/// The bytes that a normalised name can hold.
inline constexpr std::string_view nameSymbols = "abcdefghijklmnopqrstuvwxyz0123456789_";

inline constexpr auto symbolOfByte = [] {
    std::array<std::uint8_t, 256> table{};
    for (std::size_t i = 0; i < nameSymbols.size(); ++i) {
        table[static_cast<unsigned char>(nameSymbols[i])] = static_cast<std::uint8_t>(i);
    }
    return table;
}();

/// The index of a normalised name's byte in `nameSymbols`.
inline std::uint8_t symbolOf(char byte) {
    assert(nameSymbols.find(byte) != std::string_view::npos);
    return symbolOfByte[static_cast<unsigned char>(byte)];
}

/// The most bytes of a name whose positions fit into one mask.
inline constexpr std::size_t maskedLength = 64;

/// A normalised name, with what all its comparisons need. Its bytes must outlive it. The arrays
/// have an entry for each symbol.
struct PreparedName {
    explicit PreparedName(std::string_view name) : bytes(name) {
        for (std::size_t i = 0; i < name.size(); ++i) {
            const std::uint8_t symbol = symbolOf(name[i]);
            ++counts[symbol];
            positions[symbol] |= isMasked() ? std::uint64_t{1} << i : 0;
        }
    }

    bool isMasked() const { return bytes.size() <= maskedLength; }

    std::string_view bytes;
    std::array<std::uint32_t, nameSymbols.size()> counts{};
    /// Bit i is set if the name has the symbol at i. All are 0 if the name is too long for masks.
    std::array<std::uint64_t, nameSymbols.size()> positions{};
};

/// An application column that is long enough for the measure.
struct AppColumn {
    std::int32_t index; ///< in the list of application columns
    PreparedName name;
};

} // namespace columnimport
