// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

namespace drillhole {

/// What the command line asks for.
struct Options {
    std::string database;           ///< the connection to the drill holes
    std::string table;              ///< where to import to; empty if the file's name tells it
    std::vector<std::string> files; ///< to import at once, one after the other
    std::string source;             ///< the connection to import a table from, or empty
    std::string sourceTable;        ///< empty to let the user choose
    bool thenQuits = false;         ///< when all that was asked for is imported
};

/// Reads the command line. Throws a Fault, or Glib::OptionError, if it makes no sense; ends the
/// program after --help.
Options readOptions(int &argc, char **&argv);

} // namespace drillhole
