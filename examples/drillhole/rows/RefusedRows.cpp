// SPDX-License-Identifier: MIT

#include "examples/drillhole/rows/RefusedRows.h"

#include "examples/drillhole/rows/Fault.h"

#include <filesystem>
#include <system_error>

#include <csv.h>

namespace drillhole {

namespace {

constexpr std::size_t countInMemory = 1000;

std::string asCsv(std::string_view field) {
    std::string text(csv_write(nullptr, 0, field.data(), field.size()), '\0');
    csv_write(text.data(), text.size(), field.data(), field.size());
    return text;
}

std::string linesOf(const Row &row) {
    const std::string first = std::to_string(row.firstLine);
    return row.firstLine == row.lastLine ? first : first + '-' + std::to_string(row.lastLine);
}

} // namespace

RefusedRows::RefusedRows(const std::string &path) : m_path(path), m_unfinished(path + ".part") {
    std::error_code ignored;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path(), ignored);
    m_file.open(m_unfinished, std::ios::binary | std::ios::trunc);
    m_file << "line,reason,row\n";
    finish();
}

RefusedRows::~RefusedRows() {
    std::error_code ignored;
    std::filesystem::remove(m_unfinished, ignored);
}

void RefusedRows::add(const Row &row, const std::string &reason) {
    ++m_count;
    m_file << linesOf(row) << ',' << asCsv(reason);
    for (const std::string_view field : row.fields) {
        m_file << ',' << asCsv(field);
    }
    m_file << '\n';
    if (m_first.size() < countInMemory) {
        m_first.push_back({linesOf(row), reason});
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
