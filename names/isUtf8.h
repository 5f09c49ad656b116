// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace columnimport {

/// Whether `bytes` are well-formed UTF-8: each character written the shortest way, none beyond
/// Unicode and no half of one.
bool isUtf8(std::string_view bytes);

} // namespace columnimport
