// SPDX-License-Identifier: MIT

// A run without a dialog.

#include "host/c/Import.h"

#include "host/openImport.h"
#include "names/ColumnMatch.h"

#include <utility>

using columnimport::ColumnMatch;
using columnimport::ImportRequest;
using columnimport::ImportResult;

namespace {

ImportResult proposed(ImportRequest request) {
    ImportResult result;
    result.delimiter = request.delimiter;
    result.holdsTitles = request.holdsTitles;
    columnimport::Opening opening = columnimport::openImport(std::move(request));
    result.fileProblem = columnimport::problemOf(opening.source);
    result.sourceColumns = std::move(opening.source.columns);
    result.fields = std::move(opening.source.fields);
    for (const ColumnMatch &match : opening.matches) {
        result.matches.push_back(
            {match, match.position < 0
                        ? std::string()
                        : columnimport::columnName(result.sourceColumns, result.holdsTitles,
                                                   static_cast<std::size_t>(match.position))});
    }
    return result;
}

} // namespace

std::int32_t columnimport_propose(columnimport_import *import) {
    return columnimport::outcomeOfRun(import, [](columnimport_import &filled) {
        filled.result = proposed(columnimport::completed(filled.request));
        return columnimport_ok;
    });
}
