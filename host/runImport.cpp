// SPDX-License-Identifier: MIT

#include "host/runImport.h"

#include "delimited/readHeader.h"
#include "dialogs/ImportOptions.h"
#include "dialogs/screen.h"
#include "dialogs/wxImportODBCDialog.h"
#include "dragdrop/ListCtrlSource.h"
#include "dragdrop/controls.h"
#include "host/c/columnimport.h"
#include "host/modalRun.h"
#include "host/toolkit.h"
#include "names/nameText.h"

#include <wx/log.h>
#include <wx/recguard.h>

namespace columnimport {

/// Access to a dialog beyond its public members.
struct DialogAccess {
    /// Call it before `create`.
    static void setOptions(wxImportCSVDialog &dialog, const ImportOptions &options) {
        dialog.m_options = std::make_unique<const ImportOptions>(options);
    }

    /// The result of a dialog that has ended. Moves the source columns out of it.
    static ImportResult takeResult(wxImportCSVDialog &dialog) {
        const auto &list = *findControl<ListCtrlSource>(dialog, wxImportCSVDialog::LISTBOX_MATCH);
        std::vector<SourceMatch> matches;
        matches.reserve(static_cast<std::size_t>(list.GetItemCount()));
        for (int row = 0; row < list.GetItemCount(); ++row) {
            matches.push_back(list.getMatch(row));
        }
        return {std::move(matches),      std::move(dialog.m_fileSchema),
                dialog.m_header->fields, problemOf(*dialog.m_header),
                dialog.getDelimiter(),   dialog.isFirstLineHeader()};
    }
};

namespace {

/// The position of the dialog, on platforms where a program may place its windows.
const wxPoint framePlace(100, 100);

/// The size of the frame if the host asks for `size`. At the usual scale it is exactly that. At
/// another scale the host can't know what to ask for, so the size is scaled, up to the end of the
/// screen.
wxSize frameSize(const wxWindow &dialog, wxSize size) {
    constexpr int greatestSize = 32000; // no screen has as many pixels
    const Scale scale(dialog);
    if (scale.isUsual()) {
        return size;
    }
    size.DecTo(wxSize(greatestSize, greatestSize));
    size = scale(size);
    size.DecTo(frameRoom(dialog));
    return size;
}

std::int32_t show(wxImportCSVDialog &dialog, HostStandIn &parent, const ImportRequest &request,
                  std::optional<ImportResult> &result) {
    DialogAccess::setOptions(dialog, request);
    dialog.SetPosition(framePlace); // `create` fits the dialog to the screen from there
    dialog.create();
    // The fitted size is only a default: the host may ask for less.
    dialog.SetMinSize(wxDefaultSize);
    resize(dialog, frameSize(dialog, {request.width, request.height}));
    dialog.SetPosition(framePlace);
    const bool ok = showModal(dialog) == wxID_OK;
    const bool isThere = hasWindow(dialog);
    if (isThere) {
        result = DialogAccess::takeResult(dialog);
    }
    parent.release();
    dialog.Destroy();
    if (!isThere) {
        return columnimport_failed;
    }
    return ok ? columnimport_ok : columnimport_cancelled;
}

} // namespace

std::int32_t runImport(HostWindow hostWindow, const ImportRequest &request,
                       std::optional<ImportResult> &result) {
    if (!isToolkitSetUp()) {
        return columnimport_no_display;
    }
    static wxRecursionGuardFlag openRuns = 0;
    const wxRecursionGuard run(openRuns);
    if (run.IsInside()) {
        return columnimport_already_open;
    }
    const wxLogNull silence; // the toolkit would log to the host's console or open windows
    HostStandIn parent(hostWindow);
    const wxString title = shownText(request.title);
    if (request.table) {
        wxImportODBCDialog dialog(parent.window(), title, request.appColumns, request.path,
                                  request.useSavedMatches, request.savedMatches, *request.table);
        return show(dialog, parent, request, result);
    }
    wxImportCSVDialog dialog(parent.window(), title, request.appColumns, request.path,
                             request.useSavedMatches, request.savedMatches, request.delimiter,
                             request.holdsTitles);
    return show(dialog, parent, request, result);
}

} // namespace columnimport
