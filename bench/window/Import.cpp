// SPDX-License-Identifier: MIT

#include "bench/window/Import.h"

#include "bench/columnNames.h"
#include "delimited/readHeader.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include <unistd.h>

namespace columnimport::bench {

namespace {

std::string spelledWithout(char blank, std::string title) {
    std::replace(title.begin(), title.end(), blank, '_');
    return title;
}

} // namespace

Import::Import(std::size_t appCount, const std::vector<std::string> &titles)
    : m_appColumns(columnNames(appCount, 1)),
      m_fileName(std::filesystem::temp_directory_path() /
                 ("columnimport_window_bench." + std::to_string(getpid()))) {
    std::ofstream file(m_fileName, std::ios::binary);
    for (const std::string &title : titles) {
        file << (&title == &titles.front() ? "" : " ,") << spelledWithout(' ', title);
    }
    // A single title stands for a file of one endless line.
    const std::size_t rows = titles.size() > 1 ? previewLines : 0;
    for (std::size_t row = 0; row < rows; ++row) {
        for (std::size_t field = 0; field < titles.size(); ++field) {
            file << (field == 0 ? "\n" : " ,") << 0.25 * static_cast<double>(row + field);
        }
    }
    if (!file.flush()) {
        throw std::runtime_error("can't write " + m_fileName);
    }
}

Import::~Import() {
    std::error_code ignored;
    std::filesystem::remove(m_fileName, ignored);
}

} // namespace columnimport::bench
