// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include <soci/soci.h>

namespace drillhole {

/// The tables and views of an ODBC source, as its driver lists them: each database keeps them in
/// another place.
std::vector<std::string> odbcTableNames(soci::session &source);

} // namespace drillhole
