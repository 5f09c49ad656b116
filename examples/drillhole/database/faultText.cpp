// SPDX-License-Identifier: MIT

#include "examples/drillhole/database/faultText.h"

#include <sstream>

namespace drillhole {

namespace {

struct Advice {
    const char *reported; ///< a part of the database's words
    const char *advice;
};

constexpr Advice advices[] = {
    {"is locked",
     "Another program is writing to the database. Wait until it has ended, or close it "
     "there, and import again."},
    {"is full", "The disk is full. Make room on it and import again."},
    {"No space left", "The disk is full. Make room on it and import again."},
    {"unable to open database file",
     "See that the file and its folder exist, and that you may read and write there."},
    {"readonly database",
     "You may not write to it. Ask its owner for access, or copy it to a folder "
     "of yours."},
    {"not a database", "The file is no SQLite database. Choose another one."},
    {"disk image is malformed", "The database file is damaged. Take its last copy."},
    {"Failed to find shared library",
     "The driver for this kind of database is not installed. Install "
     "the package libsoci-sqlite3-4.0, libsoci-postgresql4.0 or "
     "libsoci-odbc4.0."},
    {"No backend name found", "Begin the connection with its kind, as in postgresql://host=..."},
    {"Can't open lib", "The ODBC driver is not installed. Install it, or correct its name after "
                       "DRIVER=."},
    {"Data source name not found",
     "ODBC knows no source and no driver of this name. Correct it, or "
     "set it up in odbc.ini."},
    {"authentication failed",
     "The server refused the user or the password. Correct them and connect "
     "again."},
    {"no password supplied", "The server wants a password. Type it and connect again."},
    {"Connection refused", "No server answers there. See that it runs, and that host and port are "
                           "right."},
    {"could not translate host name",
     "No computer has this name. Correct the host, or see that the "
     "network is there."},
    {"timeout expired", "The server did not answer in time. See that the network is there."},
    {"server closed the connection", "The server went away. See that it runs, and import again."},
    {"permission denied", "The database does not let you. Ask its owner for access."},
    {"no such table", "The table is no longer there. List the tables again."},
    {"no such column", "A column is no longer there. Import again to see the present ones."},
    {"has no column", "The table of this name has other columns than the program's own. Choose "
                      "another database for the drill holes."},
    {"does not exist", "A table, a column or a database is not there, or not any more. Look again "
                       "and import anew."},
};

/// Servers end their words with a line end, and indent what they add.
std::string inOneLine(const std::string &words) {
    std::istringstream stream(words);
    std::string line;
    for (std::string word; stream >> word;) {
        line += (line.empty() ? "" : " ") + word;
    }
    return line;
}

} // namespace

std::string faultText(const std::string &words) {
    const std::string reported = inOneLine(words);
    for (const Advice &each : advices) {
        if (reported.find(each.reported) != std::string::npos) {
            return std::string(each.advice) + " (" + reported + ')';
        }
    }
    return "The database reports: " + reported;
}

} // namespace drillhole
