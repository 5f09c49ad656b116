// SPDX-License-Identifier: MIT

#pragma once

#include "delimited/ByteOrderMark.h"

#include <cstddef>
#include <string>

namespace columnimport {

/// The greatest number of lines in a preview.
inline constexpr int previewLines = 10;

/// The first ten lines of the file `path` (UTF-8) as raw bytes, each followed by one line feed. A
/// longer line is cut after `most` bytes.
///
/// A file that ends with a line feed before its tenth line gives one more, empty line; a file that
/// can't be opened gives ten empty ones.
std::string readPreview(const std::string &path, std::size_t most = std::string::npos,
                        ByteOrderMark mark = ByteOrderMark::kept);

} // namespace columnimport
