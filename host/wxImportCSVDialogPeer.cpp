// SPDX-License-Identifier: MIT

#include "host/wxImportCSVDialogPeer.h"

#include "host/c/columnimport.h"
#include "host/runImport.h"
#include "host/toolkit.h"
#include "names/ColumnMatch.h"

#include <utility>

using columnimport::ImportRequest;
using columnimport::ImportResult;

namespace {

/// The matches as a host of the peer gets them: only their names, empty for none.
std::vector<std::string> namesOf(ImportResult result) {
    std::vector<std::string> names;
    names.reserve(result.matches.size());
    for (columnimport::SourceMatch &match : result.matches) {
        names.push_back(match.name == columnimport::notUsed ? std::string()
                                                            : std::move(match.name));
    }
    return names;
}

/// The part of the request that both overloads share.
ImportRequest requestOf(std::string title, std::vector<std::string> appColumns,
                        std::string fileName, bool useSavedMatches, std::int32_t width,
                        std::int32_t height) {
    ImportRequest request;
    request.title = std::move(title);
    request.width = width;
    request.height = height;
    request.appColumns = std::move(appColumns);
    request.useSavedMatches = useSavedMatches;
    request.path = std::move(fileName);
    return request;
}

/// Runs `request` with the host's variables, and writes them however the dialog ended.
bool run(columnimport::HostWindow hostWindow, ImportRequest request,
         std::vector<std::string> &savedMatches, char &delimiter, bool &firstLineHeader) {
    request.savedMatches = savedMatches;
    request.delimiter = delimiter;
    request.holdsTitles = firstLineHeader;
    std::optional<ImportResult> result;
    const std::int32_t outcome = columnimport::runImport(hostWindow, request, result);
    if (result) {
        delimiter = result->delimiter;
        firstLineHeader = result->holdsTitles;
        savedMatches = namesOf(std::move(*result));
    }
    return outcome == columnimport_ok;
}

} // namespace

wxImportCSVDialogPeer::wxImportCSVDialogPeer() {
    columnimport::setUpToolkit();
}

wxImportCSVDialogPeer::~wxImportCSVDialogPeer() = default;

wxImportCSVDialogPeer &wxImportCSVDialogPeer::operator=(const wxImportCSVDialogPeer &) = default;

bool wxImportCSVDialogPeer::showWindow(columnimport::HostWindow hostWindow, std::string title,
                                       std::vector<std::string> appColumns, std::string fileName,
                                       bool *useSavedMatches,
                                       std::vector<std::string> *savedMatches, char *delimiter,
                                       bool *firstLineHeader, std::int32_t width,
                                       std::int32_t height) {
    return run(hostWindow,
               requestOf(std::move(title), std::move(appColumns), std::move(fileName),
                         *useSavedMatches, width, height),
               *savedMatches, *delimiter, *firstLineHeader);
}

bool wxImportCSVDialogPeer::showWindow(columnimport::HostWindow hostWindow, std::string title,
                                       std::vector<std::string> appColumns,
                                       std::vector<std::string> fileSchema, std::string fileName,
                                       bool *useSavedMatches,
                                       std::vector<std::string> *savedMatches, std::int32_t width,
                                       std::int32_t height) {
    ImportRequest request = requestOf(std::move(title), std::move(appColumns), std::move(fileName),
                                      *useSavedMatches, width, height);
    request.table = std::move(fileSchema);
    char delimiter = ',';
    bool firstLineHeader = true;
    return run(hostWindow, std::move(request), *savedMatches, delimiter, firstLineHeader);
}
