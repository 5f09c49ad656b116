// SPDX-License-Identifier: MIT

#pragma once

#include "examples/drillhole/database/importRows.h"
#include "examples/drillhole/window/Settings.h"

#include <gtkmm/window.h>
#include <wxImportCSVDialogPeer.h>

namespace drillhole {

/// Lets the user match columns in the library's dialog. It opens as it was last left with OK for
/// the same table, and is kept so again.
class MatchDialog {
public:
    MatchDialog(wxImportCSVDialogPeer &peer, Settings &settings);

    /// Nothing if the user pressed Cancel. Throws a Fault if the file can't be read.
    std::optional<FileMatch> matchFile(Gtk::Window &owner, const Table &table,
                                       const std::string &path);

    /// Nothing if the user pressed Cancel; else a column's name for each column of the table.
    std::optional<std::vector<std::string>>
    matchTable(Gtk::Window &owner, const Table &table, const std::string &sourceTable,
               const std::vector<std::string> &sourceColumns);

private:
    wxImportCSVDialogPeer &m_peer;
    Settings &m_settings;
};

} // namespace drillhole
