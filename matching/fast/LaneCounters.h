// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>

namespace columnimport {

/// The number of columns that are compared side by side.
inline constexpr std::size_t laneCount = 128;

/// One bit for each of them.
using Lanes = std::bitset<laneCount>;

/// Calls `visit` with each lane that is set.
template <typename Visit>
void forEachLane(const Lanes &lanes, Visit visit) {
    constexpr std::size_t half = 64;
    for (std::size_t first = 0; first < lanes.size(); first += half) {
        std::uint64_t left = (lanes << (half - first) >> half).to_ullong();
        for (; left != 0; left &= left - 1) {
            visit(first + std::bitset<half>(~left & (left - 1)).count());
        }
    }
}

/// A counter up to 255 for each lane. One value, `m_bits[p]`, holds bit p of all counters, so that
/// a few operations on whole words count in all lanes.
class LaneCounters {
public:
    static constexpr std::size_t rowsAtOnce = 4;

    /// Counts the lanes that are set, in each of four rows.
    void add(const Lanes &a, const Lanes &b, const Lanes &c, const Lanes &d) {
        const Lanes oneOfThree = a ^ b ^ c;
        const Lanes twoOfThree = (a & b) | (c & (a ^ b));
        const Lanes twoWithFourth = oneOfThree & d;
        Lanes carry = addBits(0, oneOfThree ^ d, {});
        carry = addBits(1, twoOfThree ^ twoWithFourth, carry);
        carry = addBits(2, twoOfThree & twoWithFourth, carry);
        for (std::size_t bit = 3; bit < m_bits.size(); ++bit) {
            carry = addBits(bit, {}, carry);
        }
    }

    /// Sets the counters of `lanes`, which must be 0.
    void set(const Lanes &lanes, std::size_t value) {
        for (std::size_t bit = 0; bit < m_bits.size(); ++bit) {
            m_bits[bit] |= ((value >> bit) & 1U) != 0 ? lanes : Lanes();
        }
    }

    /// The lanes whose counters are at least 128.
    const Lanes &atLeast128() const { return m_bits.back(); }

private:
    /// Adds two bits to one bit of each counter and returns the carry.
    Lanes addBits(std::size_t bit, const Lanes &a, const Lanes &b) {
        const Lanes before = m_bits[bit];
        const Lanes either = a ^ b;
        m_bits[bit] = before ^ either;
        return (a & b) | (before & either);
    }

    std::array<Lanes, 8> m_bits{};
};

} // namespace columnimport
