// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

namespace columnimport {

/// Opens the regular file `path` (UTF-8) for binary reading, shared with other programs. The caller
/// closes it.
///
/// Never waits for a pipe or a device. Returns null if the file can't be opened or is not a regular
/// one, and sets `fault` to the system's reason if there is one. Each platform has a file of its
/// own.
std::FILE *openRegularFile(const std::string &path, std::error_code &fault);

/// A delimited file, open for reading only and shared with other programs, read line by line.
///
/// `path` is UTF-8. Anything but a regular file (a folder, a device, a pipe) counts as a file that
/// can't be opened. A file that has nothing to read for the moment fails instead of blocking; a
/// disk or network that doesn't answer does block. Every platform reads the same lines.
class SourceFile {
public:
    explicit SourceFile(const std::string &path);

    /// Whether the file could be opened and every read so far has gone well.
    bool isReadable() const { return m_file != nullptr && std::ferror(m_file.get()) == 0; }

    /// The system's reason why the file is not readable, if it has one.
    std::error_code fault() const { return m_fault; }

    /// Whether a read has reached the end of the file; false before the first read, and for a file
    /// that can't be opened.
    bool isAtEnd() const { return m_isAtEnd; }

    /// The bytes up to the next line feed, without it and without a carriage return directly before
    /// it. At the end of the file, or if reading fails, an empty line.
    ///
    /// Of a longer line, only the first `most` bytes are returned and kept in memory.
    std::string readLine(std::size_t most = std::string::npos);

private:
    struct Close {
        void operator()(std::FILE *file) const { std::fclose(file); }
    };

    /// Reads the next block; false if there is none.
    bool readBlock();

    std::error_code m_fault; // before m_file, since opening sets it
    std::unique_ptr<std::FILE, Close> m_file;
    bool m_isAtEnd = false;
    std::array<char, 1U << 16U> m_block;
    std::string_view m_unread; ///< the rest of the block
};

} // namespace columnimport
