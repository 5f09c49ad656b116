// SPDX-License-Identifier: MIT

#pragma once

#include "dialogs/ImportOptions.h"
#include "names/ColumnMatch.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace columnimport {

/// What a host asks of one import, through any of the entry points.
struct ImportRequest : ImportOptions {
    std::string title;
    std::int32_t width = 0;
    std::int32_t height = 0;

    std::vector<std::string> appColumns;
    bool useSavedMatches = false;
    std::vector<std::string> savedMatches; ///< by application column, empty for none

    std::string path;                              ///< of the file
    std::optional<std::vector<std::string>> table; ///< the columns of a table instead
    char delimiter = ',';
    bool holdsTitles = true;
};

/// The outcome of one import.
struct ImportResult {
    std::vector<SourceMatch> matches; ///< one for each row of the dialog
    std::vector<std::string> sourceColumns;
    std::vector<std::int32_t> fields; ///< by source column, as in Header; empty for a table
    std::string fileProblem;          ///< why the file could not be read, or empty
    char delimiter = ',';
    bool holdsTitles = true;
};

} // namespace columnimport
