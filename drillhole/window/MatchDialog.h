// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/window/ImportStory.h"
#include "drillhole/window/Settings.h"

#include <gtkmm/window.h>

namespace drillhole {

/// Lets the user match columns in the library's dialog. It opens as it was last left with OK for
/// the same table, and is kept so again; for columns that had no match then, or whose match this
/// source lacks, with a proposal. Gives nothing if the user pressed Cancel. Throws a Fault.
///
/// @param columns  those of a source that is a table
std::optional<Match> matchColumns(Gtk::Window &owner, Settings &settings, const Table &table,
                                  const ImportSource &source,
                                  const std::vector<std::string> &columns);

} // namespace drillhole
