// SPDX-License-Identifier: MIT

#pragma once

#include "examples/drillhole/rows/RowSource.h"

#include <string>

#include <csv.h>

namespace drillhole {

/// Cuts delimited text into rows: double quotes protect delimiters and line ends, blanks around a
/// field go. Lines end at line feeds; blank lines are no rows.
///
/// A row of columns in blanks has no empty field: with a blank as the delimiter, a run of blanks is
/// one separator. A double quote as the delimiter leaves nothing to quote with.
class CsvParser {
public:
    /// Throws a Fault if the delimiter is a line end.
    explicit CsvParser(char delimiter);
    ~CsvParser();
    CsvParser(const CsvParser &) = delete;
    CsvParser &operator=(const CsvParser &) = delete;

    /// Takes the next bytes of the text. All complete rows must have been taken out before. Throws
    /// a Fault if a field goes on for so long that a quote must be missing.
    void parse(std::string_view bytes);

    /// Takes the end of the text for the end of the last row. Throws a Fault if that is quoted.
    void finish();

    /// Takes out the next complete row, or returns false if there is none.
    bool next(Row &row);

private:
    struct Field {
        std::size_t begin;
        std::size_t length;
        bool holdsNothing;
    };
    struct Bounds {
        std::size_t firstField;
        std::size_t endField;
        std::size_t firstLine;
        std::size_t lastLine;
    };

    static void onField(void *bytes, std::size_t length, void *self);
    static void onRowEnd(int, void *self);
    void addField(const char *bytes, std::size_t length);
    void endRow();
    void dropTakenRows();

    csv_parser m_parser{};
    bool m_delimiterIsBlank;
    std::string m_text; // of all fields, one after the other
    std::vector<Field> m_fields;
    std::vector<Bounds> m_rows;
    std::size_t m_nextRow = 0;
    std::size_t m_rowBegin = 0; // the first field of the row that is not complete
    std::size_t m_firstLine = 1;
    std::size_t m_line = 1;
};

} // namespace drillhole
