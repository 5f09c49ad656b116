// SPDX-License-Identifier: MIT

#include "examples/drillhole/database/connection.h"
#include "examples/drillhole/database/faultText.h"
#include "examples/drillhole/rows/Fault.h"

#include <gtest/gtest.h>

using namespace drillhole;

namespace {

TEST(Connection, IsShownWithoutItsPassword) {
    const char *const cases[][2] = {
        {"postgresql://host=a password=geheim dbname=b", "postgresql://host=a dbname=b"},
        {"postgresql://password='ge h\\'eim' dbname=b", "postgresql://dbname=b"},
        {"postgresql://postgresql://ann:geheim@a/b", "postgresql://postgresql://ann@a/b"},
        {"odbc://DSN=a;PWD={ge;heim};UID=b", "odbc://DSN=a;UID=b"},
        {"odbc://DSN=a;Pwd=geheim", "odbc://DSN=a;"},
        {"sqlite3://db=\"/data/pwd/holes.sqlite\"", "sqlite3://db=\"/data/pwd/holes.sqlite\""},
    };
    for (const auto &each : cases) {
        EXPECT_EQ(withoutPassword(each[0]), each[1]);
    }
}

TEST(Connection, TakesAPasswordThatNobodySeesAgain) {
    for (const std::string kind : {"postgresql://host=a", "odbc://DSN=a", "odbc://DSN=a;"}) {
        for (const std::string password : {"geheim", "ge'h ei}m", "ge\\heim;x"}) {
            const std::string connection = withPassword(kind, password);
            EXPECT_EQ(withoutPassword(connection + (kind[0] == 'o' ? ";" : "")).find("heim"),
                      std::string::npos)
                << connection;
        }
        EXPECT_EQ(withPassword(kind, ""), kind);
    }
    EXPECT_EQ(hidePasswords("no geheim here", "odbc://PWD=geheim"), "no *** here");
    EXPECT_EQ(hidePasswords("no ge;heim here", "odbc://PWD={ge;heim}"), "no *** here");
}

std::string faultOf(const std::string &connection) {
    try {
        soci::session session;
        openSource(session, connection);
        session << "select 1 from sqlite_master";
    } catch (const Fault &fault) {
        return fault.what();
    } catch (const soci::soci_error &error) {
        return faultText(error.get_error_message());
    }
    return {};
}

TEST(Connection, SaysWhatToDoWhenItFails) {
    const char *const cases[][2] = {
        {"sqlite3://db=\"/nowhere/a.sqlite\"", "See that the file and its folder exist"},
        {"sqlite3://db=\"/etc/passwd\"", "is no SQLite database"},
        {"oracle://service=a", "driver for this kind of database is not installed"},
        {"postgresql", "Begin the connection with its kind"},
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

} // namespace
