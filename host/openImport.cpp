// SPDX-License-Identifier: MIT

#include "host/openImport.h"

#include "matching/openingMatches.h"

#include <utility>

namespace columnimport {

Header readSource(const ImportRequest &request) {
    if (request.table) {
        Header table;
        table.columns = *request.table;
        table.firstLine = FirstLine::cut;
        return table;
    }
    return readHeader(request.path, request.delimiter, request.byteOrderMark);
}

std::vector<ColumnMatch> matchSource(ImportRequest &request,
                                     const std::vector<std::string> &titles) {
    const bool usesSaved = request.useSavedMatches && holdsAName(request.savedMatches);
    return openingMatches(request.appColumns, request.alternatives, request.refusesSimilar, titles,
                          request.holdsTitles, usesSaved ? &request.savedMatches : nullptr);
}

Opening openImport(ImportRequest request) {
    Opening opening{readSource(request), {}};
    opening.matches = matchSource(request, opening.source.columns);
    return opening;
}

} // namespace columnimport
