// SPDX-License-Identifier: MIT

#pragma once

#include "dialogs/ImportOptions.h"
#include "names/ColumnMatch.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace columnimport {

/// What a host asks for with one import. Each entry point fills it.
struct ImportRequest : ImportOptions {
    std::string title;
    std::int32_t width = 0;
    std::int32_t height = 0;

    std::vector<std::string> appColumns;
    bool useSavedMatches = false;
    std::vector<std::string> savedMatches; ///< by application column; an empty one is no match

    std::string path;                              ///< of the file
    std::optional<std::vector<std::string>> table; ///< the columns, if the source is a table
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
