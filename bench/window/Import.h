// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace columnimport::bench {

/// One import to be measured: application columns, and a file that is there as long as this object.
///
/// The file holds its titles and as many rows of data as a preview shows. Between two fields stand
/// a blank and a comma, so that both delimiters cut a line into as many fields; the comma gives the
/// bare ones.
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
