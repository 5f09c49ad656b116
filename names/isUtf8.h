// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace columnimport {

/// Whether `bytes` are well-formed UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF.
bool isUtf8(std::string_view bytes);

} // namespace columnimport
