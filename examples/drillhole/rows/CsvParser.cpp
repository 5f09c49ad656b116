// SPDX-License-Identifier: MIT

#include "examples/drillhole/rows/CsvParser.h"

#include "examples/drillhole/rows/Fault.h"

#include <algorithm>
#include <new>

namespace drillhole {

namespace {

constexpr std::size_t longestField = 1'048'576;
constexpr std::size_t fieldGrowth = 4096; // the library's own is 128, too little for a long field

// The dialog counts a carriage return among the blanks, and a line feed alone ends a line.
int isBlank(unsigned char byte) {
    return byte == ' ' || byte == '\t' || byte == '\r' ? 1 : 0;
}

int isLineEnd(unsigned char byte) {
    return byte == '\n' ? 1 : 0;
}

Fault openQuote(std::size_t line) {
    return Fault(
        "Line " + std::to_string(line) +
        ": a double quote opens here and does not close. Nothing was imported; correct the "
        "line and import the file again.");
}

} // namespace

CsvParser::CsvParser(char delimiter) : m_delimiterIsBlank(delimiter == ' ') {
    if (delimiter == '\n' || delimiter == '\r') {
        throw Fault("A line end can't be the delimiter. Type another one in the dialog.");
    }
    if (csv_init(&m_parser, CSV_REPALL_NL | CSV_EMPTY_IS_NULL) != 0) {
        throw std::bad_alloc();
    }
    csv_set_blk_size(&m_parser, fieldGrowth);
    csv_set_delim(&m_parser, static_cast<unsigned char>(delimiter));
    if (delimiter == '"') {
        csv_set_quote(&m_parser, '\0');
    }
    csv_set_space_func(&m_parser, isBlank);
    csv_set_term_func(&m_parser, isLineEnd);
}

CsvParser::~CsvParser() {
    csv_free(&m_parser);
}

void CsvParser::parse(std::string_view bytes) {
    dropTakenRows();
    const std::size_t parsed =
        csv_parse(&m_parser, bytes.data(), bytes.size(), onField, onRowEnd, this);
    if (parsed != bytes.size()) {
        throw std::bad_alloc();
    }
    if (m_parser.entry_pos > longestField) {
        throw openQuote(m_firstLine);
    }
}

void CsvParser::finish() {
    dropTakenRows();
    csv_set_opts(&m_parser, CSV_STRICT | CSV_STRICT_FINI | CSV_EMPTY_IS_NULL);
    if (csv_fini(&m_parser, onField, onRowEnd, this) != 0) {
        throw openQuote(m_firstLine);
    }
}

bool CsvParser::next(Row &row) {
    if (m_nextRow == m_rows.size()) {
        return false;
    }
    const Bounds &bounds = m_rows[m_nextRow++];
    row.firstLine = bounds.firstLine;
    row.lastLine = bounds.lastLine;
    row.fields.clear();
    for (std::size_t i = bounds.firstField; i < bounds.endField; ++i) {
        const Field &field = m_fields[i];
        row.fields.push_back(field.holdsNothing
                                 ? std::string_view()
                                 : std::string_view(m_text).substr(field.begin, field.length));
    }
    return true;
}

void CsvParser::onField(void *bytes, std::size_t length, void *self) {
    static_cast<CsvParser *>(self)->addField(static_cast<const char *>(bytes), length);
}

void CsvParser::onRowEnd(int, void *self) {
    static_cast<CsvParser *>(self)->endRow();
}

void CsvParser::addField(const char *bytes, std::size_t length) {
    if (bytes == nullptr && m_delimiterIsBlank) {
        return;
    }
    m_fields.push_back({m_text.size(), length, bytes == nullptr});
    if (bytes != nullptr) {
        m_text.append(bytes, length);
        m_line += static_cast<std::size_t>(std::count(bytes, bytes + length, '\n'));
    }
}

void CsvParser::endRow() {
    if (m_fields.size() > m_rowBegin) {
        m_rows.push_back({m_rowBegin, m_fields.size(), m_firstLine, m_line});
        m_rowBegin = m_fields.size();
    }
    m_firstLine = ++m_line;
}

void CsvParser::dropTakenRows() {
    const std::size_t begin =
        m_rowBegin < m_fields.size() ? m_fields[m_rowBegin].begin : m_text.size();
    m_text.erase(0, begin);
    m_fields.erase(m_fields.begin(), m_fields.begin() + static_cast<std::ptrdiff_t>(m_rowBegin));
    for (Field &field : m_fields) {
        field.begin -= begin;
    }
    m_rowBegin = 0;
    m_rows.clear();
    m_nextRow = 0;
}

} // namespace drillhole
