// SPDX-License-Identifier: MIT

#include "examples/drillhole/database/sourceTables.h"

#include "examples/drillhole/database/odbcTableNames.h"

#include <algorithm>

namespace drillhole {

namespace {

std::vector<std::string> namesFrom(soci::session &source, const std::string &query) {
    const soci::rowset<std::string> names = source.prepare << query;
    return {names.begin(), names.end()};
}

std::vector<std::string> namesFromBackend(soci::session &source) {
    const std::string backend = source.get_backend_name();
    if (backend == "odbc") {
        return odbcTableNames(source);
    }
    if (backend == "sqlite3") {
        return namesFrom(source, "select name from sqlite_master where type in ('table', 'view') "
                                 "and name not like 'sqlite~_%' escape '~'");
    }
    if (backend == "postgresql") {
        return namesFrom(source, "select table_name::text from information_schema.tables "
                                 "where table_schema = any (current_schemas(false))");
    }
    std::string name;
    soci::statement statement = (source.prepare_table_names(), soci::into(name));
    statement.execute();
    std::vector<std::string> names;
    while (statement.fetch()) {
        names.push_back(name);
    }
    return names;
}

} // namespace

std::vector<std::string> tableNames(soci::session &source) {
    std::vector<std::string> names = namesFromBackend(source);
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<std::string> columnNames(soci::session &source, const std::string &table) {
    soci::row row;
    soci::statement statement =
        (source.prepare << "select * from " + quotedName(table) + " where 1 = 0", soci::into(row));
    statement.execute();
    std::vector<std::string> names;
    for (std::size_t i = 0; i < row.size(); ++i) {
        names.push_back(row.get_properties(i).get_name());
    }
    return names;
}

std::string quotedName(const std::string &name) {
    std::string quoted = "\"";
    for (const char byte : name) {
        quoted.append(byte == '"' ? 2 : 1, byte);
    }
    return quoted + '"';
}

} // namespace drillhole
