// SPDX-License-Identifier: MIT

#include "host/runImport.h"

#include "dialogs/ImportDetails.h"
#include "dialogs/wxImportODBCDialog.h"
#include "host/HostStandIn.h"
#include "host/OpenRun.h"
#include "host/c/columnimport.h"
#include "host/modalLoop.h"
#include "host/runDialog.h"
#include "host/toolkit.h"
#include "names/nameText.h"

namespace columnimport {

namespace {

std::int32_t run(wxImportCSVDialog &dialog, HostStandIn &parent, const ImportRequest &request,
                 std::optional<ImportResult> &result) {
    ImportDetails &details = ImportDetails::of(dialog);
    details.alternatives = request.alternatives;
    details.required = request.required;
    details.refusesSimilar = request.refusesSimilar;
    details.byteOrderMark = request.byteOrderMark;
    const bool ok = runDialog(dialog, {request.width, request.height});
    if (hasWindow(dialog)) {
        result =
            ImportResult{ImportDetails::matches(dialog), ImportDetails::takeSourceColumns(dialog),
                         details.fileProblem, dialog.getDelimiter(), dialog.isFirstLineHeader()};
    }
    parent.release();
    dialog.Destroy();
    return ok ? columnimport_ok : columnimport_cancelled;
}

} // namespace

std::int32_t runImport(HostWindow hostWindow, const ImportRequest &request,
                       std::optional<ImportResult> &result) {
    if (!isToolkitSetUp()) {
        return columnimport_no_display;
    }
    if (OpenRun::isOpen()) {
        return columnimport_already_open;
    }
    const OpenRun openRun;
    HostStandIn parent(hostWindow);
    const wxString title = shownText(request.title);
    if (request.table) {
        wxImportODBCDialog dialog(parent.window(), title, request.appColumns, request.path,
                                  request.useSavedMatches, request.savedMatches, *request.table);
        return run(dialog, parent, request, result);
    }
    wxImportCSVDialog dialog(parent.window(), title, request.appColumns, request.path,
                             request.useSavedMatches, request.savedMatches, request.delimiter,
                             request.holdsTitles);
    return run(dialog, parent, request, result);
}

} // namespace columnimport
