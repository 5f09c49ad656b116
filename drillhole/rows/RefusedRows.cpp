// SPDX-License-Identifier: MIT

#include "drillhole/rows/RefusedRows.h"

#include "drillhole/rows/Fault.h"
#include "drillhole/rows/text.h"

#include <filesystem>
#include <system_error>

namespace drillhole {

namespace {

constexpr std::size_t countInMemory = 1000;

std::string asCsv(std::string_view field) {
    return ',' + inQuotes(field, '"', '"');
}

} // namespace

RefusedRows::RefusedRows(const std::string &path, const std::vector<std::string> &titles)
    : m_path(path), m_unfinished(path + ".part") {
    std::error_code ignored;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path(), ignored);
    m_file.open(m_unfinished, std::ios::binary | std::ios::trunc);
    m_file << "line,reason";
    for (const std::string &title : titles) {
        m_file << asCsv(title);
    }
    m_file << '\n';
    finish();
}

RefusedRows::~RefusedRows() {
    std::error_code ignored;
    std::filesystem::remove(m_unfinished, ignored);
}

void RefusedRows::add(const Row &row, const std::string &reason) {
    ++m_count;
    const Remark remark{linesOf(row.firstLine, row.lastLine), shortened(reason, 60)};
    m_file << remark.lines << asCsv(remark.text);
    for (const std::string_view field : row.fields) {
        m_file << asCsv(field);
    }
    m_file << '\n';
    if (m_first.size() < countInMemory) {
        m_first.push_back(remark);
    }
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

void RefusedRows::publish() {
    m_file.close();
    std::error_code ignored;
    if (m_count > 0) {
        std::filesystem::rename(m_unfinished, m_path, ignored);
    } else {
        std::filesystem::remove(m_path, ignored);
    }
}

} // namespace drillhole
