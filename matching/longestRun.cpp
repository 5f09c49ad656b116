#include "matching/longestRun.h"

#include <cassert>

namespace columnimport {

namespace {

const unsigned char *bytesOf(std::string_view text) {
    return reinterpret_cast<const unsigned char *>(text.data());
}

std::size_t longestRunByMasks(std::string_view name, std::string_view text) {
    assert(name.size() <= maskedLength);
    // Only the entries of bytes that occur are ever read; clearing all 256 would cost more than
    // the search in short names.
    std::uint64_t positions[256];
    for (const char byte : name) {
        positions[static_cast<unsigned char>(byte)] = 0;
    }
    for (const char byte : text) {
        positions[static_cast<unsigned char>(byte)] = 0;
    }
    for (std::size_t i = 0; i < name.size(); ++i) {
        positions[bytesOf(name)[i]] |= std::uint64_t{1} << i;
    }
    return longestRunAbove(0, positions, bytesOf(text), text.size());
}

/// Looks for a run longer than `best` where two texts lie beside each other. Such a run covers one
/// of any `best` + 1 neighbouring bytes, so only each of these is compared until two are equal.
std::size_t longestRunBeside(std::string_view a, std::string_view b, std::size_t best) {
    const std::size_t length = std::min(a.size(), b.size());
    std::size_t begin = 0;
    std::size_t probe = best;
    while (probe < length) {
        if (a[probe] == b[probe]) {
            std::size_t first = probe;
            while (first > begin && a[first - 1] == b[first - 1]) {
                --first;
            }
            while (probe < length && a[probe] == b[probe]) {
                ++probe;
            }
            best = std::max(best, probe - first);
        }
        begin = probe + 1;
        probe = begin + best;
    }
    return best;
}

std::size_t longestRunByDiagonals(std::string_view a, std::string_view b) {
    std::size_t best = 0;
    const std::size_t offsets = std::max(a.size(), b.size());
    for (std::size_t offset = 0; offset + best < offsets; ++offset) {
        if (offset < a.size()) {
            best = longestRunBeside(a.substr(offset), b, best);
        }
        if (offset < b.size()) {
            best = longestRunBeside(a, b.substr(offset), best);
        }
    }
    return best;
}

} // namespace

std::size_t longestRun(std::string_view a, std::string_view b) {
    if (a.size() > b.size()) {
        std::swap(a, b);
    }
    return a.size() <= maskedLength ? longestRunByMasks(a, b) : longestRunByDiagonals(a, b);
}

} // namespace columnimport
