// SPDX-License-Identifier: MIT

#pragma once

#include "delimited/readHeader.h"
#include "host/ImportRequest.h"
#include "names/ColumnMatch.h"

#include <string>
#include <vector>

namespace columnimport {

/// What an import opens with, in a dialog or as the whole answer.
struct Opening {
    Header source; ///< its columns, and what came of the first line of a file
    std::vector<ColumnMatch> matches;
};

/// Reads the first line of the file that `request` names, or takes the columns of its table.
Header readSource(const ImportRequest &request);

/// Matches the `titles` of a source as `request` asks: by position, by the saved names, or by a
/// proposal. Empties the saved names in `request` that are not among the titles.
std::vector<ColumnMatch> matchSource(ImportRequest &request,
                                     const std::vector<std::string> &titles);

/// Both in a row. `columnName` names a source column without a title, and `problemOf` says why a
/// file could not be read.
Opening openImport(ImportRequest request);

} // namespace columnimport
