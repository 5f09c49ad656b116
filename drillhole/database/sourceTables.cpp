// SPDX-License-Identifier: MIT

#include "drillhole/database/sourceTables.h"

#include "drillhole/database/QueryRows.h"
#include "drillhole/rows/Fault.h"
#include "drillhole/rows/text.h"

#include <array>

#include <soci/odbc/soci-odbc.h>
#include <soci/postgresql/soci-postgresql.h>

namespace drillhole {

namespace {

constexpr const char *sqliteTables =
    "select name, '\"' || replace(name, '\"', '\"\"') || '\"' from sqlite_master "
    "where type in ('table', 'view') and name not like 'sqlite~_%' escape '~'";
constexpr const char *serverTables =
    "select case when pg_table_is_visible(c.oid) then '' else nspname || '.' end || relname, "
    "cast(cast(c.oid as regclass) as text) from pg_class c join pg_namespace n "
    "on n.oid = relnamespace where relkind in ('r', 'p', 'v', 'm', 'f') "
    "and has_table_privilege(c.oid, 'select') and nspname !~ '^pg_|^information_schema$'";

using Names = std::map<std::string, std::string>;

// Each database keeps its tables in another place, but an ODBC driver lists them.
Names odbcTables(soci::session &source) {
    constexpr SQLUSMALLINT schemaColumn = 2; // of the result of SQLTables
    constexpr SQLUSMALLINT nameColumn = 3;
    soci::statement statement(source);
    statement.alloc();
    const SQLHSTMT handle =
        static_cast<soci::odbc_statement_backend *>(statement.get_backend())->hstmt_;
    std::string types = "TABLE,VIEW";
    if (!SQL_SUCCEEDED(SQLTables(handle, nullptr, 0, nullptr, 0, nullptr, 0,
                                 reinterpret_cast<SQLCHAR *>(types.data()), SQL_NTS))) {
        throw soci::odbc_soci_error(SQL_HANDLE_STMT, handle, "listing the tables");
    }
    std::array<char, 1024> schema{};
    std::array<char, 1024> name{};
    SQLLEN length = 0;
    SQLBindCol(handle, schemaColumn, SQL_C_CHAR, schema.data(), schema.size(), &length);
    SQLBindCol(handle, nameColumn, SQL_C_CHAR, name.data(), name.size(), &length);
    Names names;
    while (SQL_SUCCEEDED(SQLFetch(handle))) {
        std::string shown = name.data();
        std::string inQuery = inQuotes(shown, '"', '"');
        if (schema.front() != '\0') {
            shown.insert(0, schema.data() + std::string("."));
            inQuery.insert(0, inQuotes(schema.data(), '"', '"') + '.');
        }
        names[shown] = inQuery;
        schema.front() = '\0';
    }
    return names;
}

} // namespace

Names sourceTables(soci::session &source) {
    const std::string backend = source.get_backend_name();
    if (backend == "odbc") {
        return odbcTables(source);
    }
    Names names;
    const char *query = backend == "postgresql" ? serverTables : sqliteTables;
    for (QueryRows answer(source, query, {Kind::text, Kind::text}); answer.next();) {
        names[answer.row()[0].text] = answer.row()[1].text;
    }
    return names;
}

std::string nameInQuery(soci::session &source, const std::string &shown) {
    const Names names = sourceTables(source);
    const auto found = names.find(shown);
    if (found == names.end()) {
        throw Fault("There is no table " + shown + " that you may read. List the tables again.");
    }
    return found->second;
}

SourceColumns columnsOf(soci::session &source, const std::string &nameInQuery) {
    const std::string backend = source.get_backend_name();
    const std::string query = "select * from " + nameInQuery + " where 1 = 0";
    SourceColumns columns;
    if (backend == "postgresql") {
        // A row of SOCI throws at types that it does not know. The server cuts no numbers.
        soci::statement statement = (source.prepare << query);
        statement.execute();
        const PGresult *result =
            static_cast<soci::postgresql_statement_backend *>(statement.get_backend())->result_;
        for (int i = 0; i < PQnfields(result); ++i) {
            columns.names.emplace_back(PQfname(result, i));
        }
        columns.areNumbers.resize(columns.names.size());
        return columns;
    }
    soci::row row;
    soci::statement statement = (source.prepare << query, soci::into(row));
    statement.execute();
    for (std::size_t i = 0; i < row.size(); ++i) {
        const soci::column_properties &properties = row.get_properties(i);
        columns.names.push_back(properties.get_name());
        columns.areNumbers.push_back(backend == "sqlite3" ||
                                     properties.get_data_type() == soci::dt_double);
    }
    return columns;
}

} // namespace drillhole
