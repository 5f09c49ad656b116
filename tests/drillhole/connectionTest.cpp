// SPDX-License-Identifier: MIT

#include "drillhole/database/connection.h"

#include <gtest/gtest.h>
#include <netinet/in.h>
#include <unistd.h>

using namespace drillhole;

namespace {

TEST(Connection, IsShownWithoutItsPassword) {
    const char *const cases[][2] = {
        {"postgresql://host=a password=ge;heim dbname=b", "postgresql://dbname=b host=a"},
        {"postgresql://sslpassword=geheim dbname='a b'", "postgresql://dbname='a b'"},
        {"postgresql://postgresql://ann:ge%68eim@a/b", "postgresql://user=ann dbname=b host=a"},
        {"odbc://DSN=a;PWD={ge}};heim};UID=b", "odbc://DSN=a;UID=b"},
        {"odbc://DSN=a;Ssl Password=ge heim&", "odbc://DSN=a;"},
    };
    for (const auto &each : cases) {
        EXPECT_EQ(withoutPassword(each[0]), each[1]);
    }
}

TEST(Connection, NeverShowsItsPassword) {
    for (const std::string kind : {"postgresql://host=a", "odbc://DSN=a", "odbc://DSN=a;"}) {
        for (const std::string password : {"geheim", "ge'h ei}m", "ge\\heim;x"}) {
            const std::string connection = withPassword(kind, password);
            EXPECT_EQ(withoutPassword(connection).find("heim"), std::string::npos) << connection;
            EXPECT_EQ(faultText(soci::soci_error("a::b: no\n " + password + " here"), connection),
                      "The database reports: no *** here");
        }
        EXPECT_EQ(withPassword(kind, ""), kind);
    }
}

std::string faultOf(const std::string &connection) {
    try {
        inPlainWords(connection, [&] { *openSource(connection) << "select 1 from sqlite_master"; });
        return {};
    } catch (const Fault &fault) {
        return fault.what();
    }
}

TEST(Connection, AdvisesThePersonWhenItFails) {
    const char *const cases[][2] = {
        {"sqlite3://db=\"/nowhere/a.sqlite\"", "See that the file and its folder exist"},
        {"sqlite3://db=\"/etc/passwd\"", "is no SQLite database"},
        {"oracle://service=a", "Begin the connection with its kind"},
        {"postgresql://password=\'geheim", "Write its settings as in"},
        {"odbc://DRIVER=Nothing;PWD=geheim", "ODBC driver is not installed"},
        {"odbc://DSN=nothing;PWD=geheim", "ODBC knows no source"},
        {"postgresql://host=127.0.0.1 port=1 password=geheim", "No server answers there"},
    };
    for (const auto &each : cases) {
        const std::string said = faultOf(each[0]);
        EXPECT_NE(said.find(each[1]), std::string::npos) << said;
        EXPECT_EQ(said.find("geheim"), std::string::npos) << said;
    }
}

TEST(Connection, GivesUpASilentServerAfterItsTimeout) {
    const int silent = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in place{};
    socklen_t size = sizeof place;
    listen(silent, 1);
    getsockname(silent, reinterpret_cast<sockaddr *>(&place), &size);
    const std::string said = faultOf("postgresql://host=127.0.0.1 connect_timeout=1 port=" +
                                     std::to_string(ntohs(place.sin_port)));
    EXPECT_NE(said.find("did not answer within 1 second"), std::string::npos) << said;
    close(silent);
}

} // namespace
