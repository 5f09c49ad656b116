// SPDX-License-Identifier: MIT

#include "host/openImport.h"

#include "matching/openingMatches.h"

#include <utility>

namespace columnimport {

Opening openImport(ImportRequest request) {
    Opening opening;
    Header &source = opening.source;
    if (request.table) {
        source.columns = std::move(*request.table);
        source.firstLine = FirstLine::cut;
    } else {
        source = readHeader(request.path, request.delimiter, request.byteOrderMark);
    }
    const bool usesSaved = request.useSavedMatches && holdsAName(request.savedMatches);
    opening.matches = openingMatches(request.appColumns, request.alternatives,
                                     request.refusesSimilar, source.columns, request.holdsTitles,
                                     usesSaved ? &request.savedMatches : nullptr);
    return opening;
}

} // namespace columnimport
