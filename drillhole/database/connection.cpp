// SPDX-License-Identifier: MIT

#include "drillhole/database/connection.h"

#include "drillhole/database/onOwnThread.h"
#include "drillhole/rows/text.h"

#include <filesystem>
#include <regex>
#include <vector>

#include <boost/algorithm/string/replace.hpp>
#include <soci/odbc/soci-odbc.h>
#include <soci/postgresql/soci-postgresql.h>
#include <soci/sqlite3/soci-sqlite3.h>

namespace drillhole {

namespace {

const std::string sqlite = "sqlite3://";
const std::string server = "postgresql://";
const std::string odbc = "odbc://";

bool isFor(const std::string &connection, const std::string &backend) {
    return connection.compare(0, backend.size(), backend) == 0;
}

/// A connection string taken apart.
struct Parts {
    std::string open; ///< without the passwords
    std::string whole;
    std::vector<std::string> passwords;
};

// The client of the server knows which of its settings are secret. A string that it can't read has
// no settings.
Parts partsForServer(const std::string &connection) {
    Parts parts{server, server, {}};
    const std::unique_ptr<PQconninfoOption, decltype(&PQconninfoFree)> options(
        PQconninfoParse(connection.c_str() + server.size(), nullptr), &PQconninfoFree);
    const PQconninfoOption *each = options.get();
    for (; each != nullptr && each->keyword != nullptr; ++each) {
        const std::string value = each->val == nullptr ? "" : each->val;
        if (value.empty()) {
            continue;
        }
        const bool isPlain = value.find_first_of(" \t\n'\\") == std::string::npos;
        const std::string setting =
            each->keyword + ('=' + (isPlain ? value : inQuotes(value, '\'', '\\')));
        parts.whole += (parts.whole == server ? "" : " ") + setting;
        if (*each->dispchar == '*') {
            parts.passwords.push_back(value);
        } else {
            parts.open += (parts.open == server ? "" : " ") + setting;
        }
    }
    return parts;
}

Parts partsFor(const std::string &connection) {
    if (isFor(connection, server)) {
        return partsForServer(connection);
    }
    // PWD={se;cret}, SslPassword=secret
    static const std::regex secret(
        R"re((^|[;/])[\w\s]*(?:password|passwd|passphrase|pwd|secret|token)\s*=\s*(?:\{((?:[^}]|\}\})*)\}|([^;]*));?)re",
        std::regex::icase);
    Parts parts{connection, connection, {}};
    if (!isFor(connection, odbc)) {
        return parts;
    }
    parts.open = std::regex_replace(connection, secret, "$1");
    for (std::sregex_iterator each(connection.begin(), connection.end(), secret), end; each != end;
         ++each) {
        parts.passwords.push_back(each->str(2) + each->str(3));
        parts.passwords.push_back(boost::replace_all_copy(parts.passwords.back(), "}}", "}"));
    }
    return parts;
}

std::chrono::seconds timeLimitOf(const std::string &connection) {
    static const std::regex setting(R"re(timeout\s*=\s*'?([1-9]\d{0,5}))re", std::regex::icase);
    std::smatch limit;
    return std::chrono::seconds(std::regex_search(connection, limit, setting) ? std::stoi(limit[1])
                                                                              : 10);
}

// SOCI hands no SQLSTATE on when the server does not let it in. Asked behind a refusal, the server
// would refuse a wrong password twice, and count both.
void throwIfRefused(const std::string &settings) {
    const std::unique_ptr<PGconn, decltype(&PQfinish)> asking(PQconnectStart(settings.c_str()),
                                                              &PQfinish);
    PQsetErrorVerbosity(asking.get(), PQERRORS_SQLSTATE);
    PQreset(asking.get());
    if (PQstatus(asking.get()) == CONNECTION_OK) {
        return;
    }
    const std::string words = PQerrorMessage(asking.get());
    std::smatch code;
    std::regex_search(words, code, std::regex("([0-9A-Z]{5})\\s*$"));
    throw soci::postgresql_soci_error(words, PQconnectionNeedsPassword(asking.get()) ? "28P01"
                                             : code.empty()                          ? "08001"
                                                            : code.str(1).c_str());
}

Session newSession(const std::string &connection, const std::string &more) {
    if (isFor(connection, server)) {
        const std::string settings = partsFor(connection).whole.substr(server.size());
        if (settings.empty()) {
            throw Fault("Write its settings as in postgresql://host=db dbname=holes user=ann.");
        }
        // The one who waits is to give up first, and says so.
        const auto limit = (timeLimitOf(connection) + std::chrono::seconds(1)).count();
        const std::string limited = settings + " connect_timeout=" + std::to_string(limit);
        throwIfRefused(limited);
        return std::make_shared<soci::session>(soci::postgresql, limited);
    }
    if (isFor(connection, odbc)) {
        return std::make_shared<soci::session>(soci::odbc, connection.substr(odbc.size()));
    }
    if (!isFor(connection, sqlite)) {
        throw Fault("Begin the connection with its kind: sqlite3://, postgresql:// or odbc://.");
    }
    const std::string rest = connection.substr(sqlite.size());
    const std::string place = rest.find('=') == std::string::npos ? "db=\"" + rest + '"' : rest;
    return std::make_shared<soci::session>(soci::sqlite3, place + more);
}

Session open(const std::string &connection, const std::string &more) {
    const std::string place = "The database " + placeOf(connection) + " can't be opened. ";
    auto opened = onOwnThread(
        [=] { return inPlainWords(connection, [&] { return newSession(connection, more); }); });
    const std::chrono::seconds limit = timeLimitOf(connection);
    if (opened.wait_for(limit) != std::future_status::ready) {
        throw Fault(place + "It did not answer within " + std::to_string(limit.count()) +
                    " seconds. See that it runs and that the network is there.");
    }
    try {
        return opened.get();
    } catch (const Fault &fault) {
        throw Fault(place + fault.what());
    }
}

} // namespace

std::string connectionFor(const std::string &pathOrConnection) {
    if (pathOrConnection.find("://") != std::string::npos) {
        return pathOrConnection;
    }
    return sqlite + ("db=\"" + std::filesystem::absolute(pathOrConnection).string()) + '"';
}

std::string withPassword(const std::string &connection, const std::string &password) {
    if (password.empty() || isFor(connection, sqlite)) {
        return connection;
    }
    if (isFor(connection, odbc)) {
        return connection + (connection.back() == ';' ? "" : ";") + "PWD={" +
               boost::replace_all_copy(password, "}", "}}") + '}';
    }
    return partsFor(connection).whole + " password=" + inQuotes(password, '\'', '\\');
}

std::string withoutPassword(const std::string &connection) {
    return partsFor(connection).open;
}

std::string placeOf(const std::string &connection) {
    static const std::regex sqliteFile(R"re(sqlite3://db="([^"]*)")re");
    std::smatch match;
    return std::regex_match(connection, match, sqliteFile) ? match[1].str()
                                                           : withoutPassword(connection);
}

std::string hidePasswords(std::string text, const std::string &connection) {
    for (const std::string &password : partsFor(connection).passwords) {
        boost::replace_all(text, password, "***");
    }
    return text;
}

Session openDatabase(const std::string &connection) {
    return open(connection, " timeout=5");
}

Session openSource(const std::string &connection) {
    return open(connection, " readonly=true timeout=5");
}

} // namespace drillhole
