// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/rows/RowSource.h"

#include <deque>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

namespace drillhole {

/// By what one sees that a file is not the one it was.
using FileStamp = std::pair<std::uintmax_t, std::filesystem::file_time_type>;

/// Throws a Fault if there is no such file, or if it is none to be read from its head to its end.
FileStamp stampOf(const std::string &path);

/// What stands in front of the titles: a spreadsheet's note of the delimiter, and comments.
struct Preamble {
    std::size_t size = 0; ///< in bytes
    std::size_t lineCount = 0;
    std::optional<char> delimiter = {};
};

/// A delimited file, read row by row; it is never held in memory as a whole. Double quotes protect
/// delimiters and line ends, blanks around a field go. Lines end at line feeds. Lines without a
/// value, blank or of delimiters only, are no rows.
///
/// A row in which a quoted field does not end at a delimiter is refused, and the next one begins in
/// the next line; so is one of more than 100,000 fields or of many megabytes. A blank as the
/// delimiter is one separator with those beside it. A double quote as the delimiter leaves nothing
/// to quote with.
class CsvFile : public RowSource {
public:
    /// Opens the file; the path is in the file system's encoding. Throws a Fault if it can't be
    /// read, if it is no text of that kind, and if the delimiter is a line end.
    CsvFile(const std::string &path, char delimiter);

    /// At the end, throws a Fault if the file was changed since it was opened.
    bool next(Row &row) override;
    double share() const override;

    const FileStamp &stamp() const { return m_stamp; }
    const Preamble &preamble() const { return m_preamble; }

    /// The first lines behind the preamble, before the first row is read.
    std::string head() const { return m_text.substr(m_end); }

private:
    bool isBlank(char byte) const;
    const char *behindBlanks(const char *at, const char *end) const;
    bool readOn();
    bool endsWithin(Row &row);
    void takeQuoted(Row &row, const char *&at, const char *end);
    void takePlain(Row &row, const char *&at, const char *end) const;
    void refuse(Row &row, const char *reason, const char *from);

    std::string m_path;
    FileStamp m_stamp;
    std::ifstream m_file;
    char m_delimiter;
    std::string m_text;                 // the present row's, and what is read behind it
    std::size_t m_begin = 0;            // of the row in the text
    std::size_t m_end = 0;              // of the row, behind its line end
    std::deque<std::string> m_ownTexts; // of fields that don't stand in the text as they are
    Preamble m_preamble;
    std::size_t m_line = 1;
    std::size_t m_width = 0; // fields of the first row
    std::uintmax_t m_read = 0;
    bool m_isWhole = false; // the text holds as much of the row as it ever will
};

} // namespace drillhole
