// SPDX-License-Identifier: MIT

#include "drillhole/rows/RefusedRows.h"

#include "drillhole/rows/Fault.h"
#include "drillhole/rows/text.h"

#include <cerrno>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <system_error>

namespace drillhole {

namespace {

/// Makes an empty file whose name begins so, and that nobody else has.
std::string newFile(const std::string &begin) {
    std::error_code ignored; // making the file says what is wrong there
    std::filesystem::create_directories(std::filesystem::path(begin).parent_path(), ignored);
    const std::time_t now = std::time(nullptr);
    char day[16];
    std::strftime(day, sizeof day, "_%Y-%m-%d_", std::localtime(&now));
    for (std::size_t number = 1;; ++number) {
        std::string path = begin + day + std::to_string(number) + ".csv";
        std::FILE *made = std::fopen(path.c_str(), "wxe");
        if (made != nullptr) {
            std::fclose(made);
        }
        if (made != nullptr || errno != EEXIST) {
            return path;
        }
    }
}

} // namespace

RefusedRows::RefusedRows(const std::string &path, char delimiter,
                         const std::vector<std::string> &titles)
    : m_path(newFile(path)), m_delimiter(delimiter), m_file(m_path, std::ios::binary) {
    if (std::string_view(",;\t|").find(delimiter) == std::string_view::npos) {
        m_delimiter = delimiter == '\0' ? ',' : ';';
    }
    m_file << "line" << m_delimiter << "reason";
    for (const std::string &title : titles) {
        addField(title);
    }
    m_file << '\n';
    finish();
}

RefusedRows::~RefusedRows() {
    if (!m_isKept) {
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }
}

void RefusedRows::addField(std::string_view field) {
    m_file << m_delimiter << inQuotes(asUtf8(field), '"', '"');
}

Remark RefusedRows::add(const Row &row, const std::string &reason) {
    Remark remark{linesOf(row.firstLine, row.lastLine), shortened(reason, 80)};
    m_file << remark.lines;
    addField(remark.text);
    for (const std::string_view field : row.fields) {
        addField(field);
    }
    m_file << '\n';
    return remark;
}

void RefusedRows::finish() {
    m_file.flush();
    if (!m_file) {
        throw Fault(
            "The report of refused rows, " + m_path +
            ", can't be written. Nothing was imported; make room there, or see that you may "
            "write to the folder.");
    }
}

const std::string &RefusedRows::keep() {
    m_isKept = true;
    return m_path;
}

} // namespace drillhole
