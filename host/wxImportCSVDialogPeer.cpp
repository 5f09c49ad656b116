// SPDX-License-Identifier: MIT

#include "host/wxImportCSVDialogPeer.h"

#include "dialogs/wxImportODBCDialog.h"
#include "host/HostStandIn.h"
#include "host/OpenRun.h"
#include "host/modalLoop.h"
#include "host/runDialog.h"
#include "host/toolkit.h"
#include "names/nameText.h"

#include <utility>

using columnimport::HostStandIn;
using columnimport::OpenRun;

namespace {

/// One modal run: makes the dialog with `arguments` behind its parent, shows it and hands it to
/// `takeResults`, however it was ended. Returns whether it was OK.
template <typename Dialog, typename TakeResults, typename... Arguments>
bool runImport(columnimport::HostWindow hostWindow, const wxSize &size,
               const TakeResults &takeResults, const std::string &title, Arguments &&...arguments) {
    if (!OpenRun::isPossible()) {
        return false;
    }
    const OpenRun openRun;
    HostStandIn parent(hostWindow);
    Dialog dialog(parent.window(), columnimport::shownText(title),
                  std::forward<Arguments>(arguments)...);
    const bool ok = columnimport::runDialog(dialog, size);
    if (columnimport::hasWindow(dialog)) {
        takeResults(dialog);
    }
    parent.release();
    dialog.Destroy();
    return ok;
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
    const auto takeResults = [&](wxImportCSVDialog &dialog) {
        *savedMatches = dialog.getColumnNames();
        *delimiter = dialog.getDelimiter();
        *firstLineHeader = dialog.isFirstLineHeader();
    };
    return runImport<wxImportCSVDialog>(
        hostWindow, {width, height}, takeResults, title, std::move(appColumns), std::move(fileName),
        *useSavedMatches, *savedMatches, *delimiter, *firstLineHeader);
}

bool wxImportCSVDialogPeer::showWindow(columnimport::HostWindow hostWindow, std::string title,
                                       std::vector<std::string> appColumns,
                                       std::vector<std::string> fileSchema, std::string fileName,
                                       bool *useSavedMatches,
                                       std::vector<std::string> *savedMatches, std::int32_t width,
                                       std::int32_t height) {
    const auto takeResults = [&](wxImportODBCDialog &dialog) {
        *savedMatches = dialog.getColumnNames();
    };
    return runImport<wxImportODBCDialog>(hostWindow, {width, height}, takeResults, title,
                                         std::move(appColumns), std::move(fileName),
                                         *useSavedMatches, *savedMatches, std::move(fileSchema));
}
