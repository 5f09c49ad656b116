// SPDX-License-Identifier: MIT

#pragma once

#include "delimited/readHeader.h"

#include <string>
#include <vector>

namespace columnimport {

/// The host's options beyond the arguments of the constructor. Each list has an entry per
/// application column; entries at the end may be missing.
struct ImportOptions {
    std::vector<std::vector<std::string>> alternatives;
    std::vector<bool> required;
    std::vector<bool> refusesSimilar;
    ByteOrderMark byteOrderMark = ByteOrderMark::kept;
};

} // namespace columnimport
