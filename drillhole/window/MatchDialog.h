// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/window/ImportRecord.h"
#include "drillhole/window/Settings.h"

#include <gtkmm/window.h>

namespace drillhole {

/// Lets the user match columns in the library's dialog. For a source with the titles of the last
/// one it opens as was kept then, also where that is no match; for others with the kept matches
/// that they have, and a proposal for the rest. Gives nothing if the user pressed Cancel. Throws a
/// Fault.
///
/// @param columns  those of a source that is a table
std::optional<Match> matchColumns(Gtk::Window &owner, const Settings &settings, const Table &table,
                                  const ImportSource &source,
                                  const std::vector<std::string> &columns);

/// Keeps a match for the next import into the same table.
void keepMatch(Settings &settings, const Table &table, const ImportSource &source,
               const Match &match);

} // namespace drillhole
