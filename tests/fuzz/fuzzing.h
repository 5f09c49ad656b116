#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

namespace columnimport {

/// Aborts if a law is broken. The fuzzer then keeps the input as a file.
inline void require(bool holds, const char *law) {
    if (!holds) {
        std::fprintf(stderr, "broken: %s\n", law);
        std::abort();
    }
}

/// The lines of the input, filled up with empty ones to at least `least`.
inline std::vector<std::string> lines(const std::uint8_t *data, std::size_t size,
                                      std::size_t least) {
    std::istringstream text(std::string(data, data + size));
    std::vector<std::string> result;
    for (std::string line; std::getline(text, line);) {
        result.push_back(line);
    }
    result.resize(std::max(result.size(), least));
    return result;
}

} // namespace columnimport
