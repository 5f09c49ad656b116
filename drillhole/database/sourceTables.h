// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <string>
#include <vector>

#include <soci/soci.h>

namespace drillhole {

/// The tables and views that can be read, by the names that they are shown with: with the schema in
/// front, as in "lab.assays", where it is not the account's own. Beside them the names for a query.
std::map<std::string, std::string> sourceTables(soci::session &source);

/// The name for a query of a table that is shown so. Throws a Fault if it is not there.
std::string nameInQuery(soci::session &source, const std::string &shown);

/// The columns of a table, in its order.
struct SourceColumns {
    std::vector<std::string> names;
    /// Which hold numbers that the database cuts when it writes them as texts. A file of SQLite
    /// does not tell: there all may.
    std::vector<bool> areNumbers;
};

SourceColumns columnsOf(soci::session &source, const std::string &nameInQuery);

} // namespace drillhole
