// SPDX-License-Identifier: MIT

#pragma once

#include "delimited/readHeader.h"
#include "host/ImportRequest.h"
#include "names/ColumnMatch.h"

#include <string>
#include <vector>

namespace columnimport {

/// What an import opens with, whether a dialog shows it or it is the whole answer.
struct Opening {
    Header source; ///< its columns, and what came of the first line of a file
    std::vector<ColumnMatch> matches;
};

/// Reads the first line of the file that `request` names, or takes the columns of its table.
Header readSource(const ImportRequest &request);

/// Matches the `titles` of a source as `request` wants it: by position, by the saved names, or by a
/// proposal. Saved names that are not among the titles are emptied in `request`.
std::vector<ColumnMatch> matchSource(ImportRequest &request,
                                     const std::vector<std::string> &titles);

/// Both in a row. `columnName` tells what a column of the source is called where it has no title,
/// and `problemOf` why a file could not be read.
Opening openImport(ImportRequest request);

} // namespace columnimport
