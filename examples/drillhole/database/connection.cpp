// SPDX-License-Identifier: MIT

#include "examples/drillhole/database/connection.h"

#include "examples/drillhole/database/faultText.h"
#include "examples/drillhole/database/onOwnThread.h"
#include "examples/drillhole/rows/Fault.h"

#include <filesystem>
#include <regex>
#include <vector>

#include <poll.h>
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

std::string escapedIn(const std::string &text, const char *special) {
    return std::regex_replace(text, std::regex(special), R"re(\$&)re");
}

// The client of the server knows which of its settings are secret. A string that it can't read has
// no settings.
Parts partsForServer(const std::string &connection) {
    Parts parts{server, server, {}};
    const std::unique_ptr<PQconninfoOption, decltype(&PQconninfoFree)> options(
        PQconninfoParse(connection.c_str() + server.size(), nullptr), &PQconninfoFree);
    const PQconninfoOption *each = options.get();
    for (; each != nullptr && each->keyword != nullptr; ++each) {
        if (each->val == nullptr) {
            continue;
        }
        const bool isPlain = std::regex_match(each->val, std::regex(R"re([^\s'\\]+)re"));
        const std::string setting =
            std::string(parts.whole == server ? "" : " ") + each->keyword + '=' +
            (isPlain ? each->val : '\'' + escapedIn(each->val, R"re(['\\])re") + '\'');
        parts.whole += setting;
        if (*each->dispchar == '*') {
            parts.passwords.emplace_back(each->val);
        } else {
            parts.open += parts.open == server ? setting.substr(setting.front() == ' ') : setting;
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
        R"re((^|[;/])[\w\s]*(?:password|passwd|passphrase|pwd|secret|token)\s*=\s*(\{(?:[^}]|\}\})*\}|[^;]*);?)re",
        std::regex::icase);
    Parts parts{connection, connection, {}};
    if (!isFor(connection, odbc)) {
        return parts;
    }
    parts.open = std::regex_replace(connection, secret, "$1");
    for (std::sregex_iterator each(connection.begin(), connection.end(), secret), end; each != end;
         ++each) {
        const std::string password = (*each)[2];
        parts.passwords.push_back(password);
        if (password.size() > 1 && password.front() == '{') {
            const std::string bare = password.substr(1, password.size() - 2);
            parts.passwords.push_back(bare);
            parts.passwords.push_back(std::regex_replace(bare, std::regex("\\}\\}"), "}"));
        }
    }
    return parts;
}

std::chrono::seconds timeLimitOf(const std::string &connection) {
    static const std::regex setting(R"re(timeout\s*=\s*'?([1-9]\d{0,5}))re", std::regex::icase);
    std::smatch limit;
    return std::chrono::seconds(std::regex_search(connection, limit, setting) ? std::stoi(limit[1])
                                                                              : 10);
}

// SOCI hands no SQLSTATE on when the server does not let it in, so this knocks first.
void knock(const std::string &settings, std::chrono::milliseconds limit) {
    const std::unique_ptr<PGconn, decltype(&PQfinish)> knocking(PQconnectStart(settings.c_str()),
                                                                &PQfinish);
    PQsetErrorVerbosity(knocking.get(), PQERRORS_SQLSTATE);
    auto state =
        PQstatus(knocking.get()) == CONNECTION_BAD ? PGRES_POLLING_FAILED : PGRES_POLLING_WRITING;
    while (state == PGRES_POLLING_READING || state == PGRES_POLLING_WRITING) {
        const int events = state == PGRES_POLLING_READING ? POLLIN : POLLOUT;
        pollfd socket{PQsocket(knocking.get()), static_cast<short>(events), 0};
        state = poll(&socket, 1, static_cast<int>(limit.count())) > 0
                    ? PQconnectPoll(knocking.get())
                    : PGRES_POLLING_FAILED;
    }
    if (state == PGRES_POLLING_FAILED) {
        const std::string words = PQerrorMessage(knocking.get());
        std::smatch code;
        const bool isSaid = std::regex_search(words, code, std::regex("([0-9A-Z]{5})\\s*$"));
        throw soci::postgresql_soci_error(words, PQconnectionNeedsPassword(knocking.get()) ? "28P01"
                                                 : isSaid ? code[1].str().c_str()
                                                          : "08001");
    }
}

Session newSession(const std::string &connection, const std::string &more) {
    if (isFor(connection, server)) {
        const std::string settings = partsFor(connection).whole.substr(server.size());
        if (settings.empty()) {
            throw Fault("Write its settings as in postgresql://host=db dbname=holes user=ann.");
        }
        // The one who waits is to give up first, and says so.
        knock(settings, timeLimitOf(connection) + std::chrono::seconds(1));
        return std::make_shared<soci::session>(soci::postgresql, settings);
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
    auto opened = onOwnThread([=] { return newSession(connection, more); });
    if (opened.wait_for(timeLimitOf(connection)) != std::future_status::ready) {
        throw Fault(place + "It did not answer within " +
                    std::to_string(timeLimitOf(connection).count()) +
                    " seconds. See that it runs and that the network is there.");
    }
    try {
        return opened.get();
    } catch (const soci::soci_error &error) {
        throw Fault(place + faultText(error, connection));
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
        const std::string escaped = std::regex_replace(password, std::regex("\\}"), "}}");
        return connection + (connection.back() == ';' ? "" : ";") + "PWD={" + escaped + "}";
    }
    return partsFor(connection).whole + " password='" + escapedIn(password, R"re(['\\])re") + '\'';
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
        for (std::size_t place = password.empty() ? std::string::npos : text.find(password);
             place != std::string::npos; place = text.find(password, place + 3)) {
            text.replace(place, password.size(), "***");
        }
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
