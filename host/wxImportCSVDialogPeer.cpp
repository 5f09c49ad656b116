#include "host/wxImportCSVDialogPeer.h"

#include "dialogs/NameText.h"
#include "dialogs/wxImportODBCDialog.h"
#include "host/ModalRun.h"
#include "host/NativeHost.h"

#include <utility>

using columnimport::HostStandIn;
using columnimport::OpenRun;

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
    if (!OpenRun::isPossible()) {
        return false;
    }
    const OpenRun run;
    HostStandIn parent(hostWindow);
    wxImportCSVDialog dialog(parent.window(), columnimport::toText(title), std::move(appColumns),
                             std::move(fileName), *useSavedMatches, *savedMatches, *delimiter,
                             *firstLineHeader);
    const bool ok = columnimport::runDialog(dialog, width, height);
    *savedMatches = dialog.getColumnNames();
    *delimiter = dialog.getDelimiter();
    *firstLineHeader = dialog.isFirstLineHeader();
    parent.release();
    dialog.Destroy();
    return ok;
}

bool wxImportCSVDialogPeer::showWindow(columnimport::HostWindow hostWindow, std::string title,
                                       std::vector<std::string> appColumns,
                                       std::vector<std::string> fileSchema, std::string fileName,
                                       bool *useSavedMatches,
                                       std::vector<std::string> *savedMatches, std::int32_t width,
                                       std::int32_t height) {
    if (!OpenRun::isPossible()) {
        return false;
    }
    const OpenRun run;
    HostStandIn parent(hostWindow);
    wxImportODBCDialog dialog(parent.window(), columnimport::toText(title), std::move(appColumns),
                              std::move(fileName), *useSavedMatches, *savedMatches,
                              std::move(fileSchema));
    const bool ok = columnimport::runDialog(dialog, width, height);
    *savedMatches = dialog.getColumnNames();
    parent.release();
    dialog.Destroy();
    return ok;
}
