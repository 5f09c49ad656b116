// SPDX-License-Identifier: MIT

#pragma once

#include "examples/drillhole/rows/CsvParser.h"

#include <fstream>

namespace drillhole {

/// A delimited file, read row by row. It is never held in memory as a whole.
class CsvFile : public RowSource {
public:
    /// Opens the file; the path is in the file system's encoding. Throws a Fault if it can't be
    /// read.
    CsvFile(const std::string &path, char delimiter);

    bool next(Row &row) override;
    double share() const override;

private:
    bool readOn();

    std::string m_path;
    std::ifstream m_file;
    CsvParser m_parser;
    std::string m_chunk;
    double m_size;
    double m_read = 0;
    bool m_isAtEnd = false;
};

/// The file, open for reading, behind a byte-order mark if it begins with one. Throws a Fault.
std::ifstream openText(const std::string &path);

} // namespace drillhole
