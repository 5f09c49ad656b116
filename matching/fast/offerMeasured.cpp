// SPDX-License-Identifier: MIT

#include "matching/fast/offerMeasured.h"

#include <algorithm>
#include <cassert>

#include "matching/columnNameScore.h"

namespace columnimport {

namespace {

std::size_t sharedBytes(const PreparedName &a, const PreparedName &b) {
    std::size_t shared = 0;
    for (std::size_t symbol = 0; symbol < nameSymbols.size(); ++symbol) {
        shared += std::min(a.counts[symbol], b.counts[symbol]);
    }
    return shared;
}

/// The length of the common run around the equal bytes `a[i]` and `b[j]`.
std::size_t runAround(std::string_view a, std::size_t i, std::string_view b, std::size_t j) {
    std::size_t before = 0;
    while (before < std::min(i, j) && a[i - before - 1] == b[j - before - 1]) {
        ++before;
    }
    std::size_t behind = 1;
    while (behind < std::min(a.size() - i, b.size() - j) && a[i + behind] == b[j + behind]) {
        ++behind;
    }
    return before + behind;
}

/// The length of the longest run of bytes that two texts have in common, if it is longer than
/// `floor`; `floor` if it is not. The order of the texts makes no difference.
///
/// The search steps through the longer text by the best length so far, so a high floor saves most
/// of the work. It costs at most the product of the lengths, divided by the run's length for texts
/// that have little in common, and no memory.
///
///     longestRunByProbes(0, "hole_id", "holename") == 4
///     longestRunByProbes(5, "hole_id", "holename") == 5, since none is longer
std::size_t longestRunByProbes(std::size_t floor, std::string_view a, std::string_view b) {
    const auto [name, text] = std::minmax(a, b, [](std::string_view one, std::string_view other) {
        return one.size() < other.size();
    });
    // A run longer than `best` covers one of the bytes that are best + 1 apart in the text, so only
    // these are looked up in the name.
    std::size_t best = floor;
    for (std::size_t probe = best; probe < text.size(); probe += best + 1) {
        for (std::size_t at = name.find(text[probe]); at != std::string_view::npos;
             at = name.find(text[probe], at + 1)) {
            const std::size_t room =
                std::min(at, probe) + std::min(name.size() - at, text.size() - probe);
            if (room > best) {
                best = std::max(best, runAround(name, at, text, probe));
            }
        }
    }
    return best;
}

/// The same for a name with masks; costs at most the text's length times the run's.
///
/// Reads a window one byte longer than the best run backwards. The mask keeps the positions of the
/// name where all that was read matches. Once none is left, no longer run can begin up to the byte
/// that ended it, and the window moves behind that.
std::size_t longestRunByMasks(std::size_t floor, const PreparedName &name, std::string_view text) {
    assert(name.isMasked());
    std::size_t best = floor;
    std::size_t end = best;
    while (end < text.size() && best < name.bytes.size()) {
        std::size_t run = 0;
        std::uint64_t standing = name.positions[symbolOf(text[end])];
        while (standing != 0) {
            ++run;
            standing =
                run <= end ? (standing >> 1U) & name.positions[symbolOf(text[end - run])] : 0;
        }
        best = std::max(best, run);
        end += best - run + 1;
    }
    return best;
}

std::size_t longestRunAbove(std::size_t floor, const PreparedName &a, const PreparedName &b) {
    if (a.isMasked()) {
        return longestRunByMasks(floor, a, b.bytes);
    }
    return b.isMasked() ? longestRunByMasks(floor, b, a.bytes)
                        : longestRunByProbes(floor, a.bytes, b.bytes);
}

} // namespace

void offerMeasured(Vote &vote, const AppColumn &column, const PreparedName &file) {
    const std::size_t length = column.name.bytes.size();
    const std::size_t fileLength = file.bytes.size();
    const std::size_t least = leastSum(vote.score, length, fileLength);
    // The run is at most as long as the shared bytes, and these at most as many as the shorter
    // name's.
    if (2 * std::min(length, fileLength) <= least) {
        return;
    }
    const std::size_t shared = sharedBytes(column.name, file);
    if (2 * shared <= least) {
        return;
    }
    const std::size_t tooShort = least > shared ? least - shared : 0;
    const std::size_t run = longestRunAbove(tooShort, file, column.name);
    vote.offer(column.index, blendedMeasure(shared, shared, run, length, fileLength));
}

} // namespace columnimport
