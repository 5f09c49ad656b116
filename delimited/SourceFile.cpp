// SPDX-License-Identifier: MIT

#include "delimited/SourceFile.h"

#include <filesystem>
#include <system_error>

namespace columnimport {

SourceFile::SourceFile(const std::string &path) {
    m_stream.setstate(std::ios::failbit);
    try {
        const std::filesystem::path file = std::filesystem::u8path(path);
        std::error_code failure;
        if (std::filesystem::is_regular_file(file, failure)) {
            // The carriage returns are dropped in readLine: only one platform's text mode would.
            m_stream.open(file, std::ios::in | std::ios::binary);
        }
    } catch (const std::system_error &) {
        // Where a path is made of wide characters, bytes that are no UTF-8 name no file.
    }
}

std::string SourceFile::readLine() {
    std::string line;
    std::getline(m_stream, line);
    const bool endedByLineFeed = m_stream.good();
    if (endedByLineFeed && !line.empty() && line.back() == '\r') {
        line.pop_back();
    }
    return line;
}

} // namespace columnimport
