// SPDX-License-Identifier: MIT

// The matcher agrees with the reference. The first empty line parts the application columns from
// the file columns.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "tests/matching/agreement.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    std::istringstream text(std::string(data, data + size));
    std::vector<std::string> lists[2];
    bool isFile = false;
    for (std::string line; std::getline(text, line);) {
        if (line.empty() && !isFile) {
            isFile = true;
        } else {
            lists[isFile ? 1 : 0].push_back(line);
        }
    }
    const std::string difference = columnimport::disagreement(lists[0], lists[1]);
    if (!difference.empty()) {
        std::fprintf(stderr, "differs: %s\n", difference.c_str());
        std::abort();
    }
    return 0;
}
