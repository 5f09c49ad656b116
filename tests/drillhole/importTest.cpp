// SPDX-License-Identifier: MIT

// Imports into a real database, looked into with SQLite's own shell.

#include "examples/drillhole/database/connection.h"
#include "examples/drillhole/database/faultText.h"
#include "examples/drillhole/database/importRows.h"
#include "examples/drillhole/database/sourceTables.h"
#include "examples/drillhole/rows/Fault.h"

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

using namespace drillhole;

namespace {

class ImportTest : public testing::Test {
protected:
    void SetUp() override {
        std::string pattern = testing::TempDir() + "drillholeXXXXXX";
        m_folder = mkdtemp(pattern.data());
        openDatabase(m_holes, connectionFor(path("holes.sqlite")));
        makeHoleTables(m_holes);
        write("collars.csv", "hole,x,y\nLR-1,1,2\nLR-2,3,4\n");
        importFrom("collar", "collars.csv", {{"hole", "x", "y", "", ""}, ',', true});
    }
    void TearDown() override { std::filesystem::remove_all(m_folder); }

    std::string path(const std::string &name) const { return m_folder + '/' + name; }

    void write(const std::string &name, const std::string &text) const {
        std::ofstream(path(name)) << text;
    }

    std::string read(const std::string &name) const {
        std::ifstream file(path(name));
        return {std::istreambuf_iterator<char>(file), {}};
    }

    Destination into(const char *table, bool replaces = false) {
        return {m_holes, *findTable(table), path("refused.csv"), replaces};
    }

    ImportOutcome importFrom(const char *table, const std::string &file, const FileMatch &match,
                             bool replaces = false) {
        ImportProgress progress;
        return importFile(into(table, replaces), path(file), match, progress);
    }

    /// What the shell of SQLite answers.
    std::string ask(const std::string &query) const {
        const std::string command = "sqlite3 '" + path("holes.sqlite") + "' \"" + query + '"';
        FILE *shell = popen(command.c_str(), "r");
        std::array<char, 4096> answer{};
        const std::size_t length = fread(answer.data(), 1, answer.size(), shell);
        pclose(shell);
        return std::string(answer.data(), length == 0 ? 0 : length - 1);
    }

    const FileMatch m_surveyMatch{{"Hole", "At", "Az", "Dip"}, ',', true};
    std::string m_folder;
    soci::session m_holes;
};

TEST_F(ImportTest, TakesWhatFitsAndReportsTheRest) {
    write("surveys.csv",
          "Dip,Hole,At,Az\n-60,LR-1,0,90\n-60,LR-3,0,90\n-59,LR-2,10,n\n-58,LR-2,10,91\n");
    const ImportOutcome outcome = importFrom("survey", "surveys.csv", m_surveyMatch);
    EXPECT_EQ(outcome.taken, 2U);
    EXPECT_EQ(outcome.refused, 2U);
    EXPECT_EQ(ask("select * from survey"), "LR-1|0.0|90.0|-60.0\nLR-2|10.0|91.0|-58.0");
    EXPECT_EQ(read("refused.csv"),
              "line,reason,row\n"
              "3,\"no collar is called \"\"LR-3\"\"\",\"-60\",\"LR-3\",\"0\",\"90\"\n"
              "4,\"azimuth \"\"n\"\" is no number\",\"-59\",\"LR-2\",\"10\",\"n\"\n");
    write("surveys.csv", "Dip,Hole,At,Az\n-50,LR-2,0,90\n");
    importFrom("survey", "surveys.csv", m_surveyMatch, true);
    EXPECT_EQ(ask("select * from survey"), "LR-2|0.0|90.0|-50.0") << "in place of the others";
    EXPECT_FALSE(std::filesystem::exists(path("refused.csv"))) << "nothing was refused this time";
}

TEST_F(ImportTest, TakesTheDelimiterAndTheFirstLineAsTheDialogDid) {
    write("letters", "LR-1S0S90S-60\nLR-2S5S91S-61");
    importFrom("survey", "letters", {{"Column1", "Column2", "Column3", "Column4"}, 'S', false});
    write("blanks", "Hole   At  Az Dip\nLR-1    7  92 -62\nLR-1    8  93\n");
    importFrom("survey", "blanks", {m_surveyMatch.matches, ' ', true});
    write("tabs", "\xEF\xBB\xBFHole\tAt\t\tAz\tDip\r\nLR-2\t9\t\t94\t-63\r\n");
    importFrom("survey", "tabs", {{"\xEF\xBB\xBFHole", "At", "Az", "Dip"}, '\t', true});
    write("trailing", "Hole,At,Az,Dip\nLR-2,11,95,-64,\nLR-2,1,5,95,-64,\n");
    importFrom("survey", "trailing", m_surveyMatch);
    EXPECT_EQ(ask("select group_concat(depth || ' ' || dip, ', ') from survey"),
              "0.0 -60.0, 5.0 -61.0, 7.0 -62.0, 9.0 -63.0, 11.0 -64.0");
}

TEST_F(ImportTest, LeavesNothingBehindWhenItDoesNotEnd) {
    write("refused.csv", "of an earlier import");
    m_holes << "insert into survey values ('LR-1', 5, 5, 5)";
    write("surveys.csv", "Hole,At,Az,Dip\nLR-1,0,90,-60\nLR-9,0,90,-60\n\"LR-1,1,90,-60\n");
    EXPECT_THROW(importFrom("survey", "surveys.csv", m_surveyMatch, true), Fault);
    ImportProgress cancelled;
    cancelled.isCancelled = true;
    EXPECT_TRUE(importFile(into("survey", true), path("collars.csv"),
                           {{"hole", "x", "y", "x"}, ',', true}, cancelled)
                    .isCancelled);
    EXPECT_EQ(cancelled.rows, 0U) << "it ends at once";
    EXPECT_THROW(importFrom("collar", "nothing.csv", m_surveyMatch), Fault);
    EXPECT_THROW(importFrom("collar", ".", m_surveyMatch), Fault);
    EXPECT_EQ(ask("select * from survey"), "LR-1|5.0|5.0|5.0");
    EXPECT_EQ(ask("select count(*) from collar"), "2");
    EXPECT_EQ(read("refused.csv"), "of an earlier import");
    EXPECT_FALSE(std::filesystem::exists(path("refused.csv.part")));
}

TEST_F(ImportTest, SaysThatAnotherProgramHoldsTheDatabase) {
    soci::session other("sqlite3", "db=" + path("holes.sqlite"));
    other << "begin exclusive";
    try {
        importFrom("collar", "collars.csv", {{"hole", "x", "y", "", ""}, ',', true});
        ADD_FAILURE();
    } catch (const soci::soci_error &error) {
        EXPECT_EQ(faultText(error.get_error_message()).substr(0, 15), "Another program");
    }
}

TEST_F(ImportTest, ReadsATableAsItStands) {
    const std::string lab = connectionFor(path("lab's work.sqlite"));
    soci::session source;
    openDatabase(source, lab);
    source << "create table \"the holes\" (\"Hole:Id\" text, x real, y, note)";
    source << "insert into \"the holes\" values ('LR-7', 634210.84, '12.5', null), "
              "('LR-8', null, 1, 'x'), ('LR-1', 1, 1, 'x')";
    EXPECT_EQ(tableNames(source), std::vector<std::string>{"the holes"});
    std::vector<std::string> columns = columnNames(source, "the holes");
    EXPECT_EQ(columns, (std::vector<std::string>{"Hole:Id", "x", "y", "note"}));

    ImportProgress progress;
    const std::vector<std::string> matches = {"Hole:Id", "x", "y", "note", ""};
    const ImportOutcome outcome =
        importTable(into("collar"), lab, "the holes", columns, matches, progress);
    EXPECT_EQ(ask("select * from collar where holename = 'LR-7'"), "LR-7|634210.84|12.5||");
    ASSERT_EQ(outcome.refused, 2U);
    EXPECT_EQ(outcome.firstRefused[0].lines + outcome.firstRefused[0].reason, "2easting is empty");

    source << "alter table \"the holes\" rename column x to X";
    EXPECT_THROW(importTable(into("collar"), lab, "the holes", columns, matches, progress), Fault);
    EXPECT_THROW(
        importTable(into("collar"), connectionFor(path("new.sqlite")), "t", {}, {}, progress),
        Fault);
    EXPECT_FALSE(std::filesystem::exists(path("new.sqlite"))) << "a source is never made";
}

} // namespace
