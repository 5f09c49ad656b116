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

/// A delimited file, open for reading only and shared with other programs, read line by line.
///
/// `path` is UTF-8. A folder, a device or a pipe counts as a file that can't be opened. A read
/// fails if there is nothing to read yet, instead of waiting; only a slow disk or network makes it
/// wait. Lines are read alike on every platform.
class SourceFile {
public:
    explicit SourceFile(const std::string &path);

    /// Whether the file could be opened and every read so far has gone well.
    bool isReadable() const { return m_file != nullptr && std::ferror(m_file.get()) == 0; }

    /// The system's reason why the file is not readable, if it has one.
    std::error_code fault() const { return m_fault; }

    /// Whether a read has met the end of the file. False before the first read, and for a file that
    /// can't be opened.
    bool isAtEnd() const { return m_isAtEnd; }

    /// All bytes up to the next line feed, without the line feed itself and without one carriage
    /// return directly before it. An empty line at the end of the file, or if reading fails.
    ///
    /// Only the first `most` bytes of a longer line are returned and kept in memory.
    std::string readLine(std::size_t most = std::string::npos);

private:
    struct Close {
        void operator()(std::FILE *file) const { std::fclose(file); }
    };

    /// Reads on; false if there is no more.
    bool readBlock();

    std::error_code m_fault; // filled while the file is opened
    std::unique_ptr<std::FILE, Close> m_file;
    bool m_isAtEnd = false;
    std::array<char, 1U << 16U> m_block;
    std::string_view m_unread; ///< of the block
};

} // namespace columnimport
