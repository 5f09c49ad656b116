// SPDX-License-Identifier: MIT

#include "examples/drillhole/database/odbcTableNames.h"

#include "examples/drillhole/rows/Fault.h"

#include <array>

#include <soci/odbc/soci-odbc.h>

namespace drillhole {

namespace {

constexpr SQLUSMALLINT nameColumn = 3; // of the result of SQLTables

class Statement {
public:
    explicit Statement(SQLHDBC connection) {
        SQLAllocHandle(SQL_HANDLE_STMT, connection, &m_handle);
    }
    ~Statement() { SQLFreeHandle(SQL_HANDLE_STMT, m_handle); }
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;

    SQLHSTMT handle() const { return m_handle; }

private:
    SQLHSTMT m_handle = nullptr;
};

} // namespace

std::vector<std::string> odbcTableNames(soci::session &source) {
    const auto *backend = static_cast<soci::odbc_session_backend *>(source.get_backend());
    const Statement statement(backend->hdbc_);
    std::string types = "TABLE,VIEW";
    if (!SQL_SUCCEEDED(SQLTables(statement.handle(), nullptr, 0, nullptr, 0, nullptr, 0,
                                 reinterpret_cast<SQLCHAR *>(types.data()), SQL_NTS))) {
        throw Fault("The ODBC driver can't list the tables. See whether there is a newer one.");
    }
    std::vector<std::string> names;
    std::array<char, 1024> name{};
    SQLLEN length = 0;
    SQLBindCol(statement.handle(), nameColumn, SQL_C_CHAR, name.data(),
               static_cast<SQLLEN>(name.size()), &length);
    while (SQL_SUCCEEDED(SQLFetch(statement.handle()))) {
        names.emplace_back(name.data());
    }
    return names;
}

} // namespace drillhole
