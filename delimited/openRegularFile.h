// SPDX-License-Identifier: MIT

#pragma once

#include <cstdio>
#include <string>
#include <system_error>

namespace columnimport {

/// Opens the regular file `path` (UTF-8) for binary reading, shared with other programs. The caller
/// closes it.
///
/// Never waits for a pipe or a device. Returns null if the file can't be opened or is not a regular
/// one, and sets `fault` to the system's reason if there is one. Each platform has a file of its
/// own.
std::FILE *openRegularFile(const std::string &path, std::error_code &fault);

} // namespace columnimport
