// SPDX-License-Identifier: MIT

#include "matching/fast/PreparedName.h"

namespace columnimport {

PreparedName::PreparedName(std::string_view name) : bytes(name) {
    for (const char byte : name) {
        ++counts[symbolOf(byte)];
    }
    for (std::size_t i = 0; isMasked() && i < name.size(); ++i) {
        positions[symbolOf(name[i])] |= std::uint64_t{1} << i;
    }
}

} // namespace columnimport
