// SPDX-License-Identifier: MIT

#include "drillhole/database/connection.h"

#include <regex>

#include <boost/algorithm/string/trim_all.hpp>
#include <soci/odbc/soci-odbc.h>
#include <soci/postgresql/soci-postgresql.h>
#include <soci/sqlite3/soci-sqlite3.h>

namespace drillhole {

namespace {

struct Advice {
    const char *codes; ///< a pattern of how codes begin, as codeOf gives them
    const char *advice;
};

constexpr Advice advices[] = {
    {"SQLite 5", "Another program is writing to the database. Wait until it has ended, or close it "
                 "there, and import again."},
    {"SQLite 8|42501", "You may not do that there. Ask the owner of the database for access, or "
                       "take a copy of your own."},
    {"SQLite 11", "The database file is damaged. Take its last copy."},
    {"SQLite 13|53100", "The disk is full. Make room on it and import again."},
    {"SQLite 14", "See that the file and its folder exist, and that you may read and write there."},
    {"SQLite 26", "The file is no SQLite database. Choose another one."},
    {"01000", "The ODBC driver is not installed. Install it, or correct its name after DRIVER=."},
    {"08001|HYT0",
     "No server answers there. See that it runs, that host and port are right, and that "
     "the network is there."},
    {"08|57P0[12]| ",
     "The connection to the server was lost, as when the server is ended. Nothing was "
     "imported. Connect again once it runs."},
    {"28", "The server wants a password, or refused the user or the password. Correct them and "
           "connect again."},
    {"3D000", "The server has no database of this name. Correct the name after dbname=."},
    {"42703|42P01|42S", "A table or a column is not there, or not any more. Look again and import "
                        "anew."},
    {"53300", "The server has too many users at present. Try it again later."},
    {"57", "The server is being started or stopped. Try it again in a minute."},
    {"IM002", "ODBC knows no source and no driver of this name. Correct it, or set it up in "
              "odbc.ini."},
};

/// The SQLSTATE that a database gives a fault, or "SQLite " and the result code.
std::string codeOf(const soci::soci_error &error) {
    if (const auto *file = dynamic_cast<const soci::sqlite3_soci_error *>(&error)) {
        return "SQLite " + std::to_string(file->result() & 0xff);
    }
    if (const auto *server = dynamic_cast<const soci::postgresql_soci_error *>(&error)) {
        return server->sqlstate();
    }
    const auto *source = dynamic_cast<const soci::odbc_soci_error *>(&error);
    return source ? reinterpret_cast<const char *>(source->odbc_error_code()) : std::string();
}

} // namespace

std::string faultText(const soci::soci_error &error, const std::string &connection) {
    // The names of functions are for the one who wrote them, as are indents and line ends.
    static const std::regex functions(R"re(\w+(?:::\w+)+:\s*)re");
    const std::string hidden = hidePasswords(error.get_error_message(), connection);
    const std::string words = boost::trim_fill_copy(std::regex_replace(hidden, functions, ""), " ");
    const std::string code = codeOf(error);
    for (const Advice &each : advices) {
        if (std::regex_search(code, std::regex(each.codes),
                              std::regex_constants::match_continuous)) {
            return std::string(each.advice) + " (" + words + ')';
        }
    }
    return "The database reports: " + words;
}

} // namespace drillhole
