#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace columnimport {

/// The most bytes of a name whose positions fit into one mask.
inline constexpr std::size_t maskedLength = 64;

/// The length of the longest run of bytes that a text has in common with a name of at most
/// `maskedLength` bytes, if it is longer than `floor`; `floor` if it is not.
///
/// `positions[byte]` has bit i set if the name has that byte at i. A window one byte longer than
/// the best run so far is read backwards: the mask keeps the positions of the name at which all
/// that was read stands. When none is left, no longer run can begin before the byte that ended it,
/// and the window moves there. The cost is at most the text's length times the run's; names that
/// share little are read in steps of the best run's length.
template <typename Positions, typename Byte>
std::size_t longestRunAbove(std::size_t floor, const Positions &positions, const Byte *text,
                            std::size_t textLength) {
    std::size_t best = floor;
    std::size_t end = best;
    while (end < textLength) {
        std::size_t run = 0;
        std::uint64_t standing = positions[text[end]];
        while (standing != 0) {
            ++run;
            standing = run <= end ? (standing >> 1U) & positions[text[end - run]] : 0;
        }
        best = std::max(best, run);
        end += best - run + 1;
    }
    return best;
}

/// The length of the longest common run of two texts of any length.
///
/// If the shorter one fits into a mask, the cost is that of `longestRunAbove`. Otherwise at most
/// the product of the lengths, divided by the run's length where the texts differ; no memory.
std::size_t longestRun(std::string_view a, std::string_view b);

} // namespace columnimport
