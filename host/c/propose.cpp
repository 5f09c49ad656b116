// SPDX-License-Identifier: MIT

// A run without a dialog.

#include "host/c/Import.h"

#include "delimited/readHeader.h"
#include "matching/openingMatches.h"
#include "names/ColumnMatch.h"

#include <utility>

namespace columnimport {

namespace {

ImportResult proposed(ImportRequest request) {
    Header source;
    if (request.table) {
        source.columns = std::move(*request.table);
        source.firstLine = FirstLine::cut;
    } else {
        source = readHeader(request.path, request.delimiter, request.byteOrderMark);
    }
    const std::vector<ColumnMatch> matches = openingMatches(
        request.appColumns, request.alternatives, request.refusesSimilar, source.columns,
        request.holdsTitles, holdsAName(request.savedMatches) ? &request.savedMatches : nullptr);
    ImportResult result;
    for (const ColumnMatch &match : matches) {
        result.matches.push_back(
            {match, match.position < 0 ? std::string()
                                       : columnName(source.columns, request.holdsTitles,
                                                    static_cast<std::size_t>(match.position))});
    }
    result.fileProblem = problemOf(source);
    result.sourceColumns = std::move(source.columns);
    result.fields = std::move(source.fields);
    result.delimiter = request.delimiter;
    result.holdsTitles = request.holdsTitles;
    return result;
}

} // namespace

} // namespace columnimport

std::int32_t columnimport_propose(columnimport_import *import) {
    return columnimport::outcomeOfRun(import, [](columnimport_import &filled) {
        filled.result = columnimport::proposed(columnimport::completed(filled.request));
        return columnimport_ok;
    });
}
