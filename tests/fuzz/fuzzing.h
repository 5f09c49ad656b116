#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace columnimport::fuzzing {

/// Aborts with the inputs printed, so that a fault can be read without its file.
inline void require(bool holds, const char *law, const std::vector<std::string> &inputs) {
    if (holds) {
        return;
    }
    std::fprintf(stderr, "broken: %s\n", law);
    for (const std::string &input : inputs) {
        std::fprintf(stderr, "  (%zu bytes) \"", input.size());
        for (const char byte : input) {
            std::fprintf(stderr, byte >= ' ' && byte <= '~' ? "%c" : "\\x%02x",
                         static_cast<unsigned char>(byte));
        }
        std::fprintf(stderr, "\"\n");
    }
    std::abort();
}

/// The bytes in front of each line feed, and those behind the last.
inline std::vector<std::string> lines(const std::uint8_t *data, std::size_t size) {
    std::vector<std::string> result(1);
    for (std::size_t i = 0; i < size; ++i) {
        if (data[i] == '\n') {
            result.emplace_back();
        } else {
            result.back() += static_cast<char>(data[i]);
        }
    }
    return result;
}

} // namespace columnimport::fuzzing
