// SPDX-License-Identifier: MIT

#pragma once

#include "examples/drillhole/rows/RowCheck.h"

#include <optional>
#include <string>

namespace drillhole {

/// Finds the fields that the user chose in the dialog.
///
/// The dialog cuts the first line without regard to quotes, the rows are read with it. The two are
/// brought together by position: field 3 of the dialog is field 3 of the rows, if both see the same
/// fields in the first line. Otherwise a Fault says where they part. An empty field between two
/// tabs or blanks is none for the dialog and does not count.
///
/// @param matches    what the dialog returned: a name for each application column, or "Column3" if
///                   the first line holds no titles, or an empty string
/// @param shown      the names that the dialog cuts the first line into
/// @param first      the first row, read with quoting
/// @param delimiter  what came back from the dialog
///
/// A Fault is also thrown for a name that stands above two columns, as nobody can tell which one
/// was meant, and for one that is no longer there.
FieldPositions findFields(const std::vector<std::string> &matches,
                          const std::vector<std::string> &shown, const Row &first, char delimiter,
                          bool firstLineHoldsTitles);

/// The same for a table, whose columns have their names from the database.
FieldPositions findColumns(const std::vector<std::string> &matches,
                           const std::vector<std::string> &columns);

} // namespace drillhole
