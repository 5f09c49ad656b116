// SPDX-License-Identifier: MIT

// The matcher agrees with the reference. The first empty line separates the application columns
// from the file columns.

#include <cstdint>
#include <sstream>

#include "tests/fuzz/require.h"
#include "tests/matching/agreement.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    std::istringstream text(std::string(data, data + size));
    std::vector<std::string> app, file;
    std::string line;
    while (std::getline(text, line) && !line.empty()) {
        app.push_back(line);
    }
    while (std::getline(text, line)) {
        file.push_back(line);
    }
    const std::string difference = columnimport::disagreement(app, file);
    require(difference.empty(), difference.c_str());
    return 0;
}
