// SPDX-License-Identifier: MIT

#include "examples/drillhole/database/faultText.h"

#include "examples/drillhole/database/connection.h"
#include "examples/drillhole/rows/Fault.h"

#include <regex>

#include <soci/odbc/soci-odbc.h>
#include <soci/postgresql/soci-postgresql.h>
#include <soci/sqlite3/soci-sqlite3.h>

namespace drillhole {

namespace {

struct Advice {
    const char *code; ///< as codeOf gives it, or how that begins
    const char *advice;
};

constexpr const char *noAnswer =
    "No server answers there. See that it runs, that host and port are "
    "right, and that the network is there.";
constexpr const char *mayNot =
    "You may not do that there. Ask the owner of the database for access, "
    "or take a copy of your own.";
constexpr const char *isFull = "The disk is full. Make room on it and import again.";
constexpr const char *isGone = "A table or a column is not there, or not any more. Look again and "
                               "import anew.";

constexpr Advice advices[] = {
    {"SQLite 5", "Another program is writing to the database. Wait until it has ended, or close it "
                 "there, and import again."},
    {"SQLite 8", mayNot},
    {"SQLite 11", "The database file is damaged. Take its last copy."},
    {"SQLite 13", isFull},
    {"SQLite 14", "See that the file and its folder exist, and that you may read and write there."},
    {"SQLite 26", "The file is no SQLite database. Choose another one."},
    {"01000", "The ODBC driver is not installed. Install it, or correct its name after DRIVER=."},
    {"08", noAnswer},
    {"28", "The server wants a password, or refused the user or the password. Correct them and "
           "connect again."},
    {"3D000", "The server has no database of this name. Correct the name after dbname=."},
    {"42501", mayNot},
    {"42703", isGone},
    {"42P01", isGone},
    {"42S", isGone},
    {"53100", isFull},
    {"53300", "The server has too many users at present. Try it again later."},
    {"57", "The server is being started or stopped. Try it again in a minute."},
    {"HYT0", noAnswer},
    {"IM002", "ODBC knows no source and no driver of this name. Correct it, or set it up in "
              "odbc.ini."},
};

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
    static const std::regex blanks(R"re(\s+)re");
    std::string words = std::regex_replace(error.get_error_message(), functions, "");
    words = std::regex_replace(std::regex_replace(words, blanks, " "), std::regex(" $"), "");
    words = hidePasswords(words, connection);
    const std::string code = codeOf(error);
    for (const Advice &each : advices) {
        if (code.rfind(each.code, 0) == 0) {
            return std::string(each.advice) + " (" + words + ')';
        }
    }
    return "The database reports: " + words;
}

void inPlainWords(const std::string &connection, const std::function<void()> &work) {
    try {
        work();
    } catch (const soci::soci_error &error) {
        throw Fault(faultText(error, connection));
    }
}

} // namespace drillhole
