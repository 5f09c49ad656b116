// SPDX-License-Identifier: MIT

#pragma once

#include <fstream>
#include <string>
#include <system_error>

namespace columnimport {

/// A delimited file, open for reading only and shared with other programs, read line by line.
///
/// `path` is UTF-8. Anything but a regular file (a folder, a device, a pipe) counts as a file that
/// can't be opened, so that no read can wait for ever. Lines are read alike on every platform.
class SourceFile {
public:
    explicit SourceFile(const std::string &path);

    /// Whether the file could be opened and every read so far has gone well.
    bool isReadable() const { return m_stream.is_open() && !m_stream.bad(); }

    /// The system's reason why the file is not readable, if it has one.
    std::error_code fault() const { return m_fault; }

    /// Whether a read has met the end of the file. Never so before the first read, and never for a
    /// file that can't be opened.
    bool isAtEnd() const { return m_stream.eof(); }

    /// All bytes up to the next line feed, which is consumed and not returned, nor is one carriage
    /// return directly before it. At the end of the file, or if reading fails, an empty line.
    std::string readLine();

private:
    std::ifstream m_stream;
    std::error_code m_fault;
};

} // namespace columnimport
