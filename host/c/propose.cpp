// SPDX-License-Identifier: MIT

// A run without a dialog.

#include "host/c/Import.h"

#include "delimited/readHeader.h"
#include "matching/openingMatches.h"

#include <utility>

using columnimport::ImportRequest;
using columnimport::ImportResult;
using columnimport::SourceMatch;

namespace {

ImportResult proposed(ImportRequest request) {
    ImportResult result;
    result.delimiter = request.delimiter;
    result.holdsTitles = request.holdsTitles;
    if (request.table) {
        result.sourceColumns = std::move(*request.table);
    } else {
        columnimport::Header header =
            columnimport::readHeader(request.path, request.delimiter, request.byteOrderMark);
        result.sourceColumns = std::move(header.columns);
        result.fileProblem = columnimport::problemOf(header);
    }
    std::vector<std::string> *saved =
        columnimport::holdsAName(request.savedMatches) ? &request.savedMatches : nullptr;
    const std::vector<std::string> names =
        columnimport::columnNames(result.sourceColumns, request.holdsTitles);
    for (const std::int32_t position :
         columnimport::openingMatches(request.appColumns, request.alternatives,
                                      result.sourceColumns, request.holdsTitles, saved)) {
        result.matches.push_back(
            position < 0 ? SourceMatch{}
                         : SourceMatch{position, names[static_cast<std::size_t>(position)]});
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
