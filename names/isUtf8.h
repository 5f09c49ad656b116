// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace columnimport {

/// Whether `bytes` are well-formed UTF-8: each character in its shortest form, none beyond Unicode,
/// and no surrogate.
bool isUtf8(std::string_view bytes);

} // namespace columnimport
