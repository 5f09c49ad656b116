// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace columnimport::bench {

/// One import to measure: application columns, and a file that exists as long as this object.
///
/// The file holds its titles and as many rows of data as a preview shows. A blank and a comma
/// separate two fields, so that both delimiters cut a line into equally many; only the comma gives
/// clean ones.
class Import {
public:
    Import(std::size_t appCount, const std::vector<std::string> &titles);
    ~Import();
    Import(const Import &) = delete;
    Import &operator=(const Import &) = delete;

    const std::vector<std::string> &appColumns() const { return m_appColumns; }
    const std::string &fileName() const { return m_fileName; }

private:
    std::vector<std::string> m_appColumns;
    std::string m_fileName;
};

} // namespace columnimport::bench
