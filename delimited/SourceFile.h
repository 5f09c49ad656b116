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
/// `path` is UTF-8. Anything but a regular file (a folder, a device, a pipe) counts as a file that
/// can't be opened. What has nothing to read for the time being fails instead of being waited for;
/// a disk or a network that does not answer is waited for. Lines are read alike on every platform.
class SourceFile {
public:
    explicit SourceFile(const std::string &path);

    /// Whether the file could be opened and every read so far has gone well.
    bool isReadable() const { return m_file != nullptr && std::ferror(m_file.get()) == 0; }

    /// The system's reason why the file is not readable, if it has one.
    std::error_code fault() const { return m_fault; }

    /// Whether a read has met the end of the file. Never so before the first read, and never for a
    /// file that can't be opened.
    bool isAtEnd() const { return m_isAtEnd; }

    /// All bytes up to the next line feed, which is consumed and not returned, nor is one carriage
    /// return directly before it. At the end of the file, or if reading fails, an empty line.
    ///
    /// Of a longer line only the first `most` bytes are returned, and no more of it is kept in
    /// memory.
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
