// SPDX-License-Identifier: MIT

#include "matching/fast/longestRun.h"

#include <algorithm>

namespace columnimport {

namespace {

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

} // namespace

std::size_t longestRunAbove(std::size_t floor, std::string_view a, std::string_view b) {
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

} // namespace columnimport
