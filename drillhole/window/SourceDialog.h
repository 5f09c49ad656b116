// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/window/ImportRecord.h"

#include <gtkmm/window.h>

namespace drillhole {

enum class SourceKind {
    table, ///< one in a database to read from
    holes  ///< a database for the drill holes
};

/// Lets the user connect to a database, and choose a table of it if it is to be one. Gives nothing
/// if the user pressed Cancel.
///
/// @param connection  what to begin with, perhaps with a password
/// @param message     what the user reads first
std::optional<ImportSource> chooseSource(Gtk::Window &owner, SourceKind kind,
                                         const std::string &connection, const std::string &message);

} // namespace drillhole
