// SPDX-License-Identifier: MIT

#pragma once

#include "examples/drillhole/database/importRows.h"
#include "examples/drillhole/window/Settings.h"

#include <gtkmm/window.h>

namespace drillhole {

// Both let the user match columns in the library's dialog. It opens as it was last left with OK for
// the same table, and is kept so again; for columns that had no match then, or whose match this
// source lacks, with a proposal. Both give nothing if the user pressed Cancel, and throw a Fault.

std::optional<Match> matchFile(Gtk::Window &owner, Settings &settings, const Table &table,
                               const std::string &path);

std::optional<Match> matchTable(Gtk::Window &owner, Settings &settings, const Table &table,
                                const std::string &sourceTable,
                                const std::vector<std::string> &sourceColumns);

} // namespace drillhole
