// SPDX-License-Identifier: MIT

#include "matching/fast/offerMeasured.h"

#include <algorithm>
#include <cassert>

#include "matching/blendedMeasure.h"
#include "matching/fast/longestRun.h"

namespace columnimport {

namespace {

std::size_t sharedBytes(const PreparedName &a, const PreparedName &b) {
    std::size_t shared = 0;
    for (std::size_t symbol = 0; symbol < nameSymbols.size(); ++symbol) {
        shared += std::min(a.counts[symbol], b.counts[symbol]);
    }
    return shared;
}

/// `longestRunAbove` for a name with masks; costs at most the text's length times the run's.
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
                        : columnimport::longestRunAbove(floor, a.bytes, b.bytes);
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
