// SPDX-License-Identifier: MIT

#include "examples/drillhole/database/connection.h"

#include "examples/drillhole/database/faultText.h"
#include "examples/drillhole/rows/Fault.h"

#include <filesystem>
#include <regex>
#include <vector>

namespace drillhole {

namespace {

constexpr const char *sqlite = "sqlite3://";

// password=secret, PWD={se;cret} or password='se cret'; and the user:secret@ of an address.
const std::regex &passwordSetting() {
    static const std::regex pattern(
        R"re((^|[\s;/?&])(?:password|pwd)\s*=\s*('(?:[^'\\]|\\.)*'|"[^"]*"|\{(?:[^}]|\}\})*\}|[^\s;&]*)[\s;&]?)re",
        std::regex::icase);
    return pattern;
}

const std::regex &passwordInAddress() {
    static const std::regex pattern(R"re((//[^/:@\s]*):([^/@\s]*)@)re");
    return pattern;
}

bool isFor(const std::string &connection, const std::string &backend) {
    return connection.compare(0, backend.size(), backend) == 0;
}

std::vector<std::string> passwordsOf(const std::string &connection) {
    std::vector<std::string> passwords;
    for (const std::regex *pattern : {&passwordSetting(), &passwordInAddress()}) {
        for (std::sregex_iterator match(connection.begin(), connection.end(), *pattern), end;
             match != end; ++match) {
            const std::string password = (*match)[2];
            passwords.push_back(password);
            const bool isQuoted = password.size() > 1 &&
                                  std::string("'\"{").find(password.front()) != std::string::npos;
            passwords.push_back(isQuoted ? password.substr(1, password.size() - 2) : password);
        }
    }
    return passwords;
}

/// An SQLite connection with more settings.
std::string withSettings(const std::string &connection, const std::string &settings) {
    const std::string rest = connection.substr(std::string(sqlite).size());
    const std::string place = rest.find('=') == std::string::npos ? "db=\"" + rest + '"' : rest;
    return sqlite + place + ' ' + settings;
}

void open(soci::session &session, const std::string &connection, const std::string &settings) {
    try {
        session.open(isFor(connection, sqlite) ? withSettings(connection, settings) : connection);
    } catch (const soci::soci_error &error) {
        throw Fault("The database " + placeOf(connection) + " can't be opened. " +
                    hidePasswords(faultText(error.get_error_message()), connection));
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
    if (password.empty()) {
        return connection;
    }
    if (isFor(connection, "odbc://")) {
        std::string escaped = std::regex_replace(password, std::regex("\\}"), "}}");
        return connection + (connection.back() == ';' ? "" : ";") + "PWD={" + escaped + "}";
    }
    const std::string escaped =
        std::regex_replace(password, std::regex(R"re(['\\])re"), R"re(\$&)re");
    return connection + " password='" + escaped + '\'';
}

std::string withoutPassword(const std::string &connection) {
    std::string shown = std::regex_replace(connection, passwordSetting(), "$1");
    shown = std::regex_replace(shown, passwordInAddress(), "$1@");
    return shown.substr(0, shown.find_last_not_of(' ') + 1);
}

std::string placeOf(const std::string &connection) {
    static const std::regex sqliteFile(R"re(sqlite3://db="([^"]*)")re");
    std::smatch match;
    return std::regex_match(connection, match, sqliteFile) ? match[1].str()
                                                           : withoutPassword(connection);
}

std::string hidePasswords(std::string text, const std::string &connection) {
    for (const std::string &password : passwordsOf(connection)) {
        for (std::size_t place = password.empty() ? std::string::npos : text.find(password);
             place != std::string::npos; place = text.find(password, place + 3)) {
            text.replace(place, password.size(), "***");
        }
    }
    return text;
}

void openDatabase(soci::session &session, const std::string &connection) {
    open(session, connection, "timeout=5");
}

void openSource(soci::session &session, const std::string &connection) {
    open(session, connection, "readonly=true timeout=5");
}

} // namespace drillhole
