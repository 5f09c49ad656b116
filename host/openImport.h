// SPDX-License-Identifier: MIT

#pragma once

#include "delimited/readHeader.h"
#include "host/ImportRequest.h"
#include "names/ColumnMatch.h"

#include <vector>

namespace columnimport {

/// What an import opens with, in a dialog or as the whole answer.
struct Opening {
    Header source; ///< its columns, and the report on the first line of a file
    std::vector<ColumnMatch> matches;
};

/// Reads the first line of the file that `request` names, or takes the columns of its table, and
/// matches them as `request` asks: by position, by the saved names, or by a proposal. `columnName`
/// names a source column without a title, and `problemOf` says why a file could not be read.
Opening openImport(ImportRequest request);

} // namespace columnimport
