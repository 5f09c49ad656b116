// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/rows/Fault.h"

#include <memory>
#include <string>

#include <soci/soci.h>

namespace drillhole {

// A connection string names a backend and what that needs to find a database:
//     sqlite3://db="/data/holes.sqlite"
//     postgresql://host=db.example.org dbname=mine user=ann
//     odbc://DSN=mine

/// The connection string for what a user types: the path of an SQLite file, or a connection string.
std::string connectionFor(const std::string &pathOrConnection);

/// The connection string with a password added, as its backend wants it. An empty one adds nothing.
std::string withPassword(const std::string &connection, const std::string &password);

/// The connection string with passwords of every kind left out, to be shown and kept.
std::string withoutPassword(const std::string &connection);

/// The database in short: the path of an SQLite file, or the connection string without password.
std::string placeOf(const std::string &connection);

/// The text with three asterisks for every password of the connection string.
std::string hidePasswords(std::string text, const std::string &connection);

/// What to do about a fault that the database of that connection reports, by its SQLSTATE or its
/// result code, followed by its words without a password in them.
std::string faultText(const soci::soci_error &error, const std::string &connection);

/// Does the work and gives its result; throws what the database reports meanwhile as a Fault.
template <typename Work>
auto inPlainWords(const std::string &connection, const Work &work) {
    try {
        return work();
    } catch (const soci::soci_error &error) {
        throw Fault(faultText(error, connection));
    }
}

using Session = std::shared_ptr<soci::session>;

/// Opens a database to write to; an SQLite file is made if it is missing. Throws a Fault, also
/// after ten seconds without an answer, or after as many as a timeout in the connection string
/// says.
Session openDatabase(const std::string &connection);

/// Opens a database to read from; nothing is made. Throws a Fault, as openDatabase.
Session openSource(const std::string &connection);

} // namespace drillhole
