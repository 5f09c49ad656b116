#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>

namespace columnimport {

/// One bit for each of 128 columns that are compared side by side.
class Lanes {
public:
    static constexpr std::size_t count = std::size_t{2} * 64;

    /// The lanes from `first` up to, but not including, `last`.
    static Lanes range(std::size_t first, std::size_t last) { return below(last) ^ below(first); }

    void set(std::size_t lane) { m_words[lane / 64] |= std::uint64_t{1} << (lane % 64); }

    bool operator[](std::size_t lane) const {
        return ((m_words[lane / 64] >> (lane % 64)) & 1U) != 0;
    }

    /// Calls `visit` with each lane that is set.
    template <typename Visit>
    void forEach(Visit visit) const {
        for (std::size_t word = 0; word < m_words.size(); ++word) {
            for (std::uint64_t left = m_words[word]; left != 0; left &= left - 1) {
                const std::uint64_t belowLowest = ~left & (left - 1);
                visit(64 * word + std::bitset<64>(belowLowest).count());
            }
        }
    }

    friend Lanes operator&(const Lanes &a, const Lanes &b) {
        return {a.m_words[0] & b.m_words[0], a.m_words[1] & b.m_words[1]};
    }
    friend Lanes operator|(const Lanes &a, const Lanes &b) {
        return {a.m_words[0] | b.m_words[0], a.m_words[1] | b.m_words[1]};
    }
    friend Lanes operator^(const Lanes &a, const Lanes &b) {
        return {a.m_words[0] ^ b.m_words[0], a.m_words[1] ^ b.m_words[1]};
    }

    Lanes() = default;

private:
    Lanes(std::uint64_t first, std::uint64_t second) : m_words{first, second} {}

    static Lanes below(std::size_t end) {
        return {belowInWord(end), end > 64 ? belowInWord(end - 64) : 0};
    }

    static std::uint64_t belowInWord(std::size_t end) {
        const std::uint64_t all = ~std::uint64_t{0};
        return end >= 64 ? all : ~(all << end);
    }

    std::array<std::uint64_t, 2> m_words{};
};

/// A counter up to 255 for each lane. Bit p of all counters stands in one value, `m_bits[p]`, so
/// that a few operations on whole words count in all lanes.
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

    /// Sets counters that are 0.
    void set(const Lanes &lanes, std::size_t value) {
        for (std::size_t bit = 0; bit < m_bits.size(); ++bit) {
            if (((value >> bit) & 1U) != 0) {
                m_bits[bit] = m_bits[bit] | lanes;
            }
        }
    }

    std::size_t operator[](std::size_t lane) const {
        std::size_t value = 0;
        for (std::size_t bit = 0; bit < m_bits.size(); ++bit) {
            value |= std::size_t{m_bits[bit][lane]} << bit;
        }
        return value;
    }

    /// The lanes whose counters stand at 128 or above.
    const Lanes &atLeast128() const { return m_bits.back(); }

private:
    /// Adds two bits to one of each counter and returns what is carried into the next.
    Lanes addBits(std::size_t bit, const Lanes &a, const Lanes &b) {
        const Lanes before = m_bits[bit];
        const Lanes either = a ^ b;
        m_bits[bit] = before ^ either;
        return (a & b) | (before & either);
    }

    std::array<Lanes, 8> m_bits{};
};

} // namespace columnimport
