// SPDX-License-Identifier: MIT

#include "examples/drillhole/rows/CsvFile.h"

#include "examples/drillhole/rows/Fault.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace drillhole {

namespace {

constexpr std::size_t chunkSize = 65'536;

std::string adviceFor(int error) {
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return "There is no such file; choose another one.";
    case EACCES:
        return "You may not read it; ask its owner for access, or copy it to a folder of yours.";
    default:
        return std::generic_category().message(error) + "; copy the file to another disk.";
    }
}

Fault unreadable(const std::string &path, const std::string &advice) {
    return Fault("The file " + path + " can't be read. " + advice);
}

} // namespace

std::ifstream openText(const std::string &path) {
    std::error_code failure;
    const auto status = std::filesystem::status(path, failure);
    // A pipe or a device could keep the reader waiting for ever.
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
        throw unreadable(path, "It is no file but a folder or a device; choose a text file.");
    }
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw unreadable(path, adviceFor(errno));
    }
    std::string mark(3, '\0');
    if (!file.read(mark.data(), 3) || mark != "\xEF\xBB\xBF") {
        file.clear();
        file.seekg(0);
    }
    return file;
}

CsvFile::CsvFile(const std::string &path, char delimiter)
    : m_path(path), m_file(openText(path)), m_parser(delimiter), m_chunk(chunkSize, '\0'),
      m_size(static_cast<double>(std::filesystem::file_size(path))) {}

bool CsvFile::next(Row &row) {
    while (!m_parser.next(row)) {
        if (!readOn()) {
            return false;
        }
    }
    return true;
}

double CsvFile::share() const {
    return m_size > 0 ? m_read / m_size : 1;
}

bool CsvFile::readOn() {
    if (m_isAtEnd) {
        return false;
    }
    m_file.read(m_chunk.data(), static_cast<std::streamsize>(m_chunk.size()));
    if (m_file.bad()) {
        throw unreadable(m_path, adviceFor(errno));
    }
    const auto count = static_cast<std::size_t>(m_file.gcount());
    if (count > 0) {
        m_read += static_cast<double>(count);
        m_parser.parse(std::string_view(m_chunk).substr(0, count));
    } else {
        m_isAtEnd = true;
        m_parser.finish();
    }
    return true;
}

} // namespace drillhole
