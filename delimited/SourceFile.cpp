// SPDX-License-Identifier: MIT

#include "delimited/SourceFile.h"

#include <algorithm>
#include <cerrno>

namespace columnimport {

SourceFile::SourceFile(const std::string &path) : m_file(openRegularFile(path, m_fault)) {}

std::string SourceFile::readLine(std::size_t most) {
    std::string line;
    std::size_t length = 0;
    bool endedByLineFeed = false;
    while (!endedByLineFeed && (!m_unread.empty() || readBlock())) {
        const std::size_t end = std::min(m_unread.find('\n'), m_unread.size());
        line.append(m_unread, 0, std::min(end, most - line.size()));
        length += end;
        endedByLineFeed = end < m_unread.size();
        m_unread.remove_prefix(endedByLineFeed ? end + 1 : end);
    }
    // The file is open in binary mode, in which no platform drops the carriage return.
    if (endedByLineFeed && length == line.size() && !line.empty() && line.back() == '\r') {
        line.pop_back();
    }
    return line;
}

bool SourceFile::readBlock() {
    if (!isReadable()) {
        return false;
    }
    m_unread = {m_block.data(), std::fread(m_block.data(), 1, m_block.size(), m_file.get())};
    if (!isReadable()) {
        m_fault = {errno, std::generic_category()};
    }
    m_isAtEnd = isReadable() && m_unread.empty();
    return !m_unread.empty();
}

} // namespace columnimport
