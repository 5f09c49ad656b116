// SPDX-License-Identifier: MIT

#pragma once

#include <cstdio>
#include <string>
#include <system_error>

namespace columnimport {

/// Opens the file `path` (UTF-8) for reading, byte for byte and shared with other programs. The
/// caller closes it.
///
/// Does not wait for the file's content. Anything but a regular file (a folder, a device, a pipe)
/// is closed again. Returns null then, and if the file can't be opened, with the system's reason in
/// `fault` if it has one.
std::FILE *openRegularFile(const std::string &path, std::error_code &fault);

} // namespace columnimport
