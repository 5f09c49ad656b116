// SPDX-License-Identifier: MIT

// What the dialog shows of a first line, and where the rows have it.

#include "examples/drillhole/rows/CsvFile.h"
#include "examples/drillhole/rows/Fault.h"
#include "examples/drillhole/rows/findFields.h"
#include "examples/drillhole/rows/firstLine.h"
#include "examples/drillhole/rows/startDelimiter.h"

#include <unistd.h>

#include <gtest/gtest.h>

using namespace drillhole;

namespace {

std::string fileOf(const std::string &text) {
    const std::string path = testing::TempDir() + "drillhole_fields_" + std::to_string(getpid());
    std::ofstream(path, std::ios::binary) << text;
    return path;
}

/// The positions of the matches in the rows, as in "2 - 0", or "fault: " and a part of its text.
std::string found(const std::vector<std::string> &matches, const std::string &text, char delimiter,
                  bool titles = true) {
    CsvFile file(fileOf(text), delimiter);
    Row first;
    file.next(first);
    const std::string line = text.substr(0, text.find('\n'));
    try {
        std::string places;
        for (const auto &place :
             findFields(matches, namesShown(line, delimiter), first, delimiter, titles)) {
            places += (places.empty() ? "" : " ") + (place ? std::to_string(*place) : "-");
        }
        return places;
    } catch (const Fault &fault) {
        std::string said = fault.what();
        for (const char *part :
             {"between its quotes", "are both called", "any more", "quotes in"}) {
            if (said.find(part) != std::string::npos) {
                return std::string("fault: ") + part;
            }
        }
        return said;
    }
}

TEST(FindFields, GivesThePlaceThatTheDialogShowed) {
    const std::vector<std::string> toAndHole = {"To", "", "Hole"};
    EXPECT_EQ(found(toAndHole, "Hole,From,To", ','), "2 - 0");
    EXPECT_EQ(found(toAndHole, "\"Hole\" , From,\"To\",\r", ','), "2 - 0");
    EXPECT_EQ(found(toAndHole, "Hole,,To", ','), "2 - 0");
    EXPECT_EQ(found({" a "}, "x,\" a \"", ','), "1") << "blanks inside quotes stay";
    EXPECT_EQ(found({"12 in"}, "12\" in,x", ','), "0") << "a quote in a name goes";
    EXPECT_EQ(found({"\xEF\xBB\xBFHole"}, "Hole,x", ','), "0") << "the dialog keeps the mark";
    EXPECT_EQ(found({"HICK", "OP,"}, "TOP,THICK", 'T'), "2 1") << "the letter T cuts";
}

TEST(FindFields, SkipsWhatTheDialogSkipsBetweenTabsAndBlanks) {
    EXPECT_EQ(found({"To", "Hole"}, "\tHole\t\t\"\"\tTo", '\t'), "4 1");
    EXPECT_EQ(found({"To", "Hole"}, "  Hole   From To ", ' '), "2 0");
    EXPECT_EQ(found({"Column3"}, "LR-1\t\t0\t5", '\t', false), "3");
}

TEST(FindFields, TakesNumbersWhereThereAreNoTitles) {
    EXPECT_EQ(found({"Column4", "", "Column1"}, "LR-1,0,5,x", ',', false), "3 - 0");
    EXPECT_EQ(found({"Column5"}, "LR-1,0,5,x", ',', false), "fault: any more");
}

TEST(FindFields, SaysWhereTheDialogAndTheRowsPart) {
    EXPECT_EQ(found({"m"}, "\"From, m\",To", ','), "fault: between its quotes");
    EXPECT_EQ(found({"To"}, "To,\"From, m\"", ','), "fault: between its quotes");
    EXPECT_EQ(found({"To"}, "\"From\nm\",To", ','), "fault: between its quotes");
    EXPECT_EQ(found({"a"}, "a,\"b,\nc\"", ','), "fault: between its quotes");
    EXPECT_EQ(found({"a"}, "a \"b \"", ' '), "fault: quotes in");
}

TEST(FindFields, LeavesNoChoiceBetweenTwoColumnsOfOneName) {
    EXPECT_EQ(found({"Au"}, "Hole,Au,Au", ','), "fault: are both called");
    EXPECT_EQ(found({"Hole"}, "Hole,Au,Au", ','), "0");
    EXPECT_EQ(found({"Cu"}, "Hole,Au,Au", ','), "fault: any more");
}

TEST(StartDelimiter, CutsTheFirstLinesMostEvenly) {
    const struct {
        const char *text;
        std::optional<char> lastUsed;
        char delimiter;
    } cases[] = {
        {"a,b,c\n1,2,3\n", {}, ','},
        {"a;b;c\n1,5;2,5;3\n", {}, ';'},
        {"Hole ID\tFrom (m)\nLR 1\t2\n", {}, '\t'},
        {"a b   c\n1   2 3\n", {}, ' '},
        {"a|b,x\n1|2\n3|4", {}, '|'},
        {"a,b\n\"1;2;3\",\"x, y\"\n", ';', ','},
        {"a,b;c\n1,2;3\n", ';', ';'},
        {"aSbSc\n1S2S3\n", 'S', 'S'},
        {"one column\nof text that is long\n", {}, ' '},
        {"hole\nLR-1\n", {}, ','},
        {"hole\nLR-1\n", '\t', '\t'},
        {"", '|', '|'},
        {"a,\"b\n1,2\n", {}, ','},
    };
    for (const auto &each : cases) {
        EXPECT_EQ(startDelimiter(fileOf(each.text), each.lastUsed), each.delimiter) << each.text;
    }
}

} // namespace
