// SPDX-License-Identifier: MIT

// Imports into a real database, looked into with SQLite's own shell.

#include "drillhole/database/connection.h"
#include "drillhole/database/importRows.h"
#include "drillhole/rows/Fault.h"
#include "drillhole/window/ImportRecord.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>
#include <sys/resource.h>

using namespace drillhole;

namespace {

/// A match of a table's columns, in their order, with the source's at these positions; {} for none.
Match matchOf(const FieldPositions &positions, char delimiter = ',', bool holdsTitles = true) {
    return {{positions, delimiter, {}}, holdsTitles, {}, {}};
}

class ImportTest : public testing::Test {
protected:
    void SetUp() override {
        std::string pattern = testing::TempDir() + "drillholeXXXXXX";
        m_folder = mkdtemp(pattern.data());
        m_holes = openHoles(connectionFor(path("holes.sqlite")));
        importText("collar", "hole,x,y\nLR-1,1,2\nLR-2,3,4\n", m_collarMatch);
    }
    void TearDown() override { std::filesystem::remove_all(m_folder); }

    std::string path(const std::string &name) const { return m_folder + '/' + name; }

    void write(const std::string &name, const std::string &text) const {
        std::ofstream(path(name)) << text;
    }

    std::string read(const std::string &name) const {
        std::ifstream file(name.front() == '/' ? name : path(name));
        return {std::istreambuf_iterator<char>(file), {}};
    }

    Destination into(const char *table, Replace replace = Replace::no) {
        return {*m_holes, *findTable(table), path("refused"), replace, {}};
    }

    ImportOutcome importText(const char *table, const std::string &text, Match match,
                             Replace replace = Replace::no) {
        match.positions.resize(findTable(table)->columns.size());
        write("rows.csv", text);
        ImportProgress progress;
        ImportOutcome outcome = importFile(into(table, replace), path("rows.csv"), match, progress);
        m_report = outcome.report;
        return outcome;
    }

    /// What the shell of SQLite answers.
    std::string ask(const std::string &query) const {
        const std::string shell = "sqlite3 '" + path("holes.sqlite") + "' \"" + query + '"';
        EXPECT_EQ(std::system((shell + " >'" + path("answer") + '\'').c_str()), 0);
        const std::string answer = read("answer");
        return answer.substr(0, answer.rfind('\n'));
    }

    const Match m_collarMatch = matchOf({0, 1, 2, {}, {}});
    const Match m_surveyMatch = matchOf({0, 1, 2, 3});
    std::string m_folder;
    std::string m_report; ///< of the last import
    Session m_holes;
};

TEST_F(ImportTest, ImportsWhatFitsAndReportsTheRest) {
    const Match dipFirst = matchOf({1, 2, 3, 0});
    importText("survey",
               "Dip,Hole,At,Az\n-60,LR-1,0,90\n-60,LR-3,0,90\n-59,LR-2,10,n\n-58,LR-2,10,91\n",
               dipFirst);
    EXPECT_EQ(ask("select * from survey"), "LR-1|0.0|90.0|-60.0\nLR-2|10.0|91.0|-58.0");
    const std::string report = m_report;
    EXPECT_EQ(read(report), "line,reason,\"Dip\",\"Hole\",\"At\",\"Az\"\n"
                            "3,\"no collar is called \"\"LR-3\"\"\",\"-60\",\"LR-3\",\"0\",\"90\"\n"
                            "4,\"azimuth \"\"n\"\" is no number\",\"-59\",\"LR-2\",\"10\",\"n\"\n");
    importText("survey", "Dip,Hole,At,Az\n-50,LR-2,0,90\n", dipFirst, Replace::anyway);
    EXPECT_EQ(ask("select * from survey"), "LR-2|0.0|90.0|-50.0") << "in place of the others";
    EXPECT_EQ(m_report, "") << "nothing was refused this time";
    importText("survey", "Dip,Hole,At,Az\nx,LR-2,0,90\n", dipFirst);
    EXPECT_NE(m_report, report);
    EXPECT_EQ(read(report).size(), 143U) << "which another import wrote";
}

TEST_F(ImportTest, UsesTheDialogsDelimiterAndFirstLine) {
    const Match quotedTitles = matchOf({1, 3, 4, 5});
    const std::tuple<const char *, Match, const char *> cases[] = {
        {"LR-1S0S90S-60\nLR-2S5S91S-61", matchOf({0, 1, 2, 3}, 'S', false), "0.0 -60.0, 5.0 -61.0"},
        {"Hole   At  Az Dip\nLR-1    7  92 -62\nLR-1    8  93\n", matchOf({0, 1, 2, 3}, ' '),
         "7.0 -62.0"},
        {"Hole\tAt\t\tAz\tDip\r\nLR-2\t9\t\t94\t-63\r\n", matchOf({0, 1, 3, 4}, '\t'), "9.0 -63.0"},
        {"Hole,At,Az,Dip\nLR-2,11,95,-64,\nLR-2,1,5,95,-64,\n,,,,\n", m_surveyMatch, "11.0 -64.0"},
        {"Hole,At,Az,Dip\nLR-2,11,95,-64,,7\nLR-2,12,95,-64\n", m_surveyMatch, "12.0 -64.0"},
        {"\"Remark, and more\",Hole,,At,Az,Dip\nx,LR-2,,13,96,-65\n", quotedTitles, "13.0 -65.0"},
    };
    for (const auto &[text, match, taken] : cases) {
        importText("survey", text, match, Replace::anyway);
        EXPECT_EQ(ask("select group_concat(depth || ' ' || dip, ', ') from survey"), taken);
    }
    for (const char *const text :
         {"\nHole,At,Az,Dip\nLR-1,1,2,3\n", "\"Hole\" x,At,Az,Dip\n", "a\n"}) {
        EXPECT_THROW(importText("survey", text, quotedTitles), Fault) << text;
    }
}

TEST_F(ImportTest, LeavesTheDatabaseUnchangedIfItDoesNotFinish) {
    *m_holes << "insert into survey values ('LR-1', 5, 5, 5)";
    const std::string surveys = "Hole,At,Az,Dip\nLR-1,0,90,-60\nLR-9,0,90,-60\n";
    {
        soci::session reader("sqlite3", "db=" + path("holes.sqlite"));
        const soci::transaction reading(reader);
        long long count = 0;
        reader << "select count(*) from survey", soci::into(count);
        *m_holes << "pragma busy_timeout = 0";
        EXPECT_THROW(importText("survey", surveys, m_surveyMatch, Replace::anyway),
                     soci::soci_error)
            << "which can't commit beside a reader";
    }
    ImportProgress cancelled;
    cancelled.isCancelled = true;
    EXPECT_TRUE(
        importFile(into("survey", Replace::anyway), path("rows.csv"), m_surveyMatch, cancelled)
            .isCancelled);
    EXPECT_EQ(cancelled.rows, 0U) << "it ends at once";
    Match match = m_surveyMatch;
    match.stamp = stampOf(path("holes.sqlite"));
    EXPECT_THROW(importText("survey", surveys, match), Fault) << "not what was matched";
    EXPECT_EQ(ask("select * from survey"), "LR-1|5.0|5.0|5.0");
    EXPECT_EQ(ask("select count(*) from collar"), "2");
    for (const auto &file : std::filesystem::directory_iterator(m_folder)) {
        EXPECT_EQ(file.path().filename().string().rfind("refused", 0), std::string::npos);
    }
}

TEST_F(ImportTest, ReplacesRowsOnlyIfAgreed) {
    *m_holes << "insert into survey values ('LR-1', 5, 5, 5)";
    const std::tuple<const char *, Replace, const char *, const char *> cases[] = {
        {"hole,x,y\nLR-1,a,2\n", Replace::anyway, "", "LR-1 1.0, LR-2 3.0"},
        {"hole,x,y\nLR-1,7,8\nLR-3,a,8\n", Replace::ifAgreed,
         "Replace 2 collars by 1 new one? 1 row of the source would be left out.",
         "LR-1 1.0, LR-2 3.0"},
        {"hole,x,y\nLR-3,7,8\n", Replace::ifAgreed,
         "Replace 2 collars by 1 new one? 1 row of the other tables would lose their collar.",
         "LR-1 1.0, LR-2 3.0"},
        {"hole,x,y\nLR-3,9,8\nLR-1,a,8\n", Replace::anyway, "", "LR-3 9.0"},
    };
    for (const auto &[text, replace, question, collars] : cases) {
        EXPECT_EQ(importText("collar", text, m_collarMatch, replace).question, question);
        EXPECT_EQ(ask("select group_concat(holename || ' ' || easting, ', ') from collar"),
                  collars);
    }
}

TEST_F(ImportTest, RefusesExistingRows) {
    const Match match = matchOf({0, 1, 2, 3, {}, {}, {}, {}, {}});
    const char *text = "Hole,From,To,Au,Cu\nLR-1,7.1,7.9,0.1,\nLR-1,8.1,8.9,0.1,\n"
                       "LR-1,7.1,7.9,0.1,\nLR-1,8.1,8.9,,\nLR-1,8.1,8.9,,\n"
                       "LR-1,1234567.1234567,1234567.1234567,,\n";
    const ImportOutcome first = importText("assay", text, match);
    EXPECT_EQ(first.taken, 3U);
    ASSERT_EQ(first.firstRefused.size(), 3U) << "two rows that stand twice in the file";
    EXPECT_EQ(first.firstRefused[0].lines + first.firstRefused[0].text, "4there already");
    ASSERT_EQ(first.remarks.size(), 4U);
    EXPECT_EQ(first.remarks[0].text,
              "filled: holename from Hole, fromdepth from From, todepth from To, Au g/t from Au");
    EXPECT_EQ(first.remarks[2].text, "not imported: Cu");
    EXPECT_EQ(first.remarks[3].lines + first.remarks[3].text,
              "5overlaps another interval of its hole: 1 row");
    const ImportOutcome second = importText("assay", text, match);
    EXPECT_EQ(second.refused, 6U);
    EXPECT_FALSE(second.isDone());
    EXPECT_EQ(ask("select count(*) from assay"), "3");
    *m_holes << "insert into assay (holename, fromdepth, todepth, duplicate) values "
                "('LR-2', 0, 1, '')";
    EXPECT_EQ(importText("assay", "Hole,From,To,Au\nLR-2,0,1,\n", match).taken, 1U)
        << "nothing is not the same as an empty text";
}

TEST_F(ImportTest, ImportsOnlyUnambiguousNumbers) {
    const Match match = matchOf({0, 1, 2, 3, 4});
    Match semicolons = matchOf({0, 1, 2, 3}, ';');
    Match converts = matchOf({0, 1, 2, {}, 3});
    converts.factors = {1, 1, 1, 1, 0.0001};
    const std::tuple<const char *, Match, const char *> cases[] = {
        {"Hole,From,To,Au,Cu,Zn\nLR-1,4,5,0,0.2,3\nLR-1,5,6,0.5,1\nLR-1,7,8,0,5\n", match,
         "0.0 0.2, 0.5 1.0"},
        {"Hole,From,To,Au,Cu\nLR-1,4,5,0.1,0.2\nLR-1,5,6,0.5,0.2,\nLR-1,7,8,1,92,\n", match,
         "0.1 0.2, 0.5 0.2"},
        {"Hole,From,To,Au,Cu\nLR-1,4,5,1,2\nLR-1,5,6,3,4,\n", match, "1.0 2.0, 3.0 4.0"},
        {"Hole;From;To;Au\nLR-1;4;5;634.210\nLR-1;5;6;1,234\nLR-1;6;7;0,5\n", semicolons,
         "1.234 , 0.5 "},
        {"Hole,From,To,Cu_ppm\nLR-1,4,5,12345\n", converts, " 1.2345"},
    };
    for (const auto &[text, positions, grades] : cases) {
        importText("assay", text, positions, Replace::anyway);
        EXPECT_EQ(ask("select group_concat(coalesce(au_gt, '') || ' ' || coalesce(cu_pct, ''), "
                      "', ') from assay"),
                  grades);
    }
}

TEST_F(ImportTest, ImportsItsReportLikeTheFile) {
    importText("assay", "Hole;From;To;Au\nLR-1;0,5;1,5;\xE9\n", matchOf({0, 1, 2, 3}, ';'));
    std::string report = read(m_report);
    EXPECT_EQ(report,
              "line;reason;\"Hole\";\"From\";\"To\";\"Au\"\n"
              "2;\"Au g/t \"\"\u00e9\"\" is no number\";\"LR-1\";\"0,5\";\"1,5\";\"\u00e9\"\n");
    report.replace(report.rfind("\u00e9"), 2, "0,7");
    importText("assay", report, matchOf({2, 3, 4, 5}, ';'));
    EXPECT_EQ(ask("select fromdepth, todepth, au_gt from assay"), "0.5|1.5|0.7");
}

TEST_F(ImportTest, ImportsNothingIfTheReportCannotBeWritten) {
    write("rows.csv", "Hole,At,Az,Dip\nLR-1,0,90,-60\n" + std::string(200'000, 'x'));
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{100'000, RLIM_INFINITY};
    const rlimit large{RLIM_INFINITY, RLIM_INFINITY};
    setrlimit(RLIMIT_FSIZE, &small);
    ImportProgress progress;
    EXPECT_THROW(importFile(into("survey"), path("rows.csv"), m_surveyMatch, progress), Fault);
    setrlimit(RLIMIT_FSIZE, &large);
    EXPECT_EQ(ask("select count(*) from survey"), "0");
}

TEST_F(ImportTest, AddsColumnsForNewElements) {
    *m_holes << "alter table assay drop column as_ppm";
    openHoles(connectionFor(path("holes.sqlite")));
    EXPECT_EQ(ask("select count(as_ppm) from assay"), "0");
    *m_holes << "alter table assay drop column standard";
    EXPECT_THROW(openHoles(connectionFor(path("holes.sqlite"))), Fault) << "another's table";
}

TEST_F(ImportTest, ReportsADatabaseLockedByAnotherProgram) {
    soci::session other("sqlite3", "db=" + path("holes.sqlite"));
    other << "begin exclusive";
    const auto start = std::chrono::steady_clock::now();
    EXPECT_THROW(inPlainWords("", [&] { importText("collar", "hole,x,y\n", m_collarMatch); }),
                 Fault);
    EXPECT_GT(std::chrono::steady_clock::now() - start, std::chrono::seconds(4)) << "it waits";
    EXPECT_THROW(openHoles(connectionFor(path("holes.sqlite"))), Fault);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(14)) << "but once";
}

TEST_F(ImportTest, ReadsValuesOfATableUnchanged) {
    const std::string lab = connectionFor(path("lab's work.sqlite"));
    const Session source = openDatabase(lab);
    *source << "create table \"the holes\" (\"Hole:Id\" text, x, y, note)";
    *source << "insert into \"the holes\" values ('LR-7', 0.1 + 0.2, '12.5', null), "
               "('LR-8', null, 1, 'x'), ('LR-1', 1, 1, 'x')";

    ImportProgress progress;
    Match match = matchOf({0, 1, 2, 3, {}}, '\0');
    match.columns = {"Hole:Id", "x", "y", "note"};
    const ImportOutcome outcome = importTable(into("collar"), lab, "the holes", match, progress);
    EXPECT_EQ(ask("select easting = 0.1 + 0.2, northing from collar where holename = 'LR-7'"),
              "1|12.5");
    ASSERT_EQ(outcome.refused, 2U);
    EXPECT_EQ(outcome.firstRefused[0].lines + outcome.firstRefused[0].text, "2easting is empty");

    *source << "alter table \"the holes\" rename column x to X";
    EXPECT_THROW(importTable(into("collar"), lab, "the holes", match, progress), Fault);
    EXPECT_THROW(
        importTable(into("collar"), connectionFor(path("new.sqlite")), "t", match, progress),
        Fault);
    EXPECT_FALSE(std::filesystem::exists(path("new.sqlite"))) << "a source is never made";
}

TEST_F(ImportTest, ShowsAViewPageByPageInBothDirections) {
    *m_holes << "insert into collar values ('LR-3', 3, 0, 0, 7), ('LR-4', 3, 0, 0, null), "
                "('M''5', 3, 0, 0, 9)";
    const Table *collars = findTable("collar");
    const std::pair<RowView, const char *> cases[] = {
        {{collars, "", {}, false}, "LR-1 LR-2 LR-3 LR-4 M'5 "},
        {{collars, "", 1, false}, "LR-1 LR-2 LR-3 LR-4 M'5 "},
        {{collars, "", 1, true}, "M'5 LR-4 LR-3 LR-2 LR-1 "},
        {{collars, "", 4, false}, "LR-3 M'5 LR-1 LR-2 LR-4 "},
        {{collars, "LR", 0, true}, "LR-4 LR-3 LR-2 LR-1 "},
        {{collars, "M'", {}, false}, "M'5 "},
    };
    for (const auto &[view, wanted] : cases) {
        for (const bool isBefore : {false, true}) {
            std::string names;
            PagePlace place{{}, isBefore, 0};
            for (auto page = pageOf(*m_holes, view, place, 2); !page.empty();
                 page = pageOf(*m_holes, view, place, 2)) {
                std::string pageNames;
                for (const auto &row : page) {
                    pageNames += row[1] + ' ';
                }
                names.insert(isBefore ? 0 : names.size(), pageNames);
                place.key = (isBefore ? page.front() : page.back()).front();
            }
            EXPECT_EQ(names, wanted) << isBefore;
        }
        EXPECT_EQ(pageOf(*m_holes, view, {{}, false, 1}, 9).size() + 1,
                  rowCount(*m_holes, *collars, view.hole));
    }
}

TEST(Doubts, AreAskedBeforeTheRowsAreImported) {
    const Table &assays = *findTable("assay");
    Match match = matchOf({0, 1, 2, {}, 3});
    match.positions.resize(assays.columns.size());
    match.names = {"Hole", "From", "To", "", "Cu_ppm"};
    match.areGuesses = {false, true, false, false, true};
    EXPECT_EQ(doubtsAbout(assays, match),
              "Cu_ppm is in another unit than Cu %: its values would be divided by 10,000. ");
    EXPECT_EQ(unitFactors(assays, match)[4], 0.0001);
    EXPECT_EQ(requiredGuesses(assays, match), "fromdepth from From");
    match.positions[4].reset();
    EXPECT_EQ(doubtsAbout(assays, match).rfind("No column fills a value", 0), 0U);
}

} // namespace
