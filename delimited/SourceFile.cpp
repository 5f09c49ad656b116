// SPDX-License-Identifier: MIT

#include "delimited/SourceFile.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace columnimport {

namespace {

std::error_code lastError() {
    return {errno, std::generic_category()};
}

} // namespace

SourceFile::SourceFile(const std::string &path) {
    m_stream.setstate(std::ios::failbit);
    try {
        const std::filesystem::path file = std::filesystem::u8path(path);
        const std::filesystem::file_status status = std::filesystem::status(file, m_fault);
        if (std::filesystem::is_regular_file(status)) {
            // The carriage returns are dropped in readLine: only one platform's text mode would.
            m_stream.open(file, std::ios::in | std::ios::binary);
            m_fault = m_stream.is_open() ? std::error_code() : lastError();
        } else if (std::filesystem::is_directory(status)) {
            m_fault = std::make_error_code(std::errc::is_a_directory);
        }
    } catch (const std::system_error &failure) {
        // Where a path is made of wide characters, bytes that are no UTF-8 name no file.
        m_fault = failure.code();
    }
}

std::string SourceFile::readLine() {
    std::string line;
    std::getline(m_stream, line);
    if (m_stream.bad()) {
        m_fault = lastError();
    }
    const bool endedByLineFeed = m_stream.good();
    if (endedByLineFeed && !line.empty() && line.back() == '\r') {
        line.pop_back();
    }
    return line;
}

} // namespace columnimport
