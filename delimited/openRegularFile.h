// SPDX-License-Identifier: MIT

#pragma once

#include <cstdio>
#include <string>
#include <system_error>

namespace columnimport {

/// Opens the file `path` (UTF-8) for reading, byte for byte and shared with other programs. The
/// caller closes it.
///
/// Does not wait for what stands behind the path, and looks at what it has opened: anything but a
/// regular file (a folder, a device, a pipe) is closed again. Then, and if nothing could be opened,
/// gives null, and in `fault` the system's reason if it has one.
std::FILE *openRegularFile(const std::string &path, std::error_code &fault);

} // namespace columnimport
