// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include <soci/soci.h>

namespace drillhole {

/// The tables and views that can be read through the connection. Throws a Fault.
std::vector<std::string> tableNames(soci::session &source);

/// The names of the table's columns, in its order. Throws a Fault.
std::vector<std::string> columnNames(soci::session &source, const std::string &table);

/// The name as it stands in a query.
std::string quotedName(const std::string &name);

} // namespace drillhole
