// SPDX-License-Identifier: MIT

#include "delimited/readHeader.h"
#include "tests/ScratchFile.h"

#include <gtest/gtest.h>

using namespace columnimport;
using Fields = std::vector<std::string>;

TEST(ReadHeader, CutsTheFirstLineAndDropsTheQuotes) {
    const struct {
        std::string content;
        char delimiter;
        Fields fields;
    } cases[] = {
        {"Hole,From\r\n1,2\r\n", ',', {"Hole", "From"}},
        {"only\rcarriage\rreturns", ',', {"only\rcarriage\rreturns"}},
        {" \t\r\n1,2\n", ',', {}},
        {"\"a,b\",\" c \",'d',e\"\"f,\"\"\n", ',', {"a", "b", " c ", "'d'", "ef", ""}},
    };
    for (const auto &[content, delimiter, fields] : cases) {
        EXPECT_EQ(readHeader(ScratchFile(content).path(), delimiter).columns, fields) << content;
    }
}

TEST(ReadHeader, ReportsTheLikelyDelimiterIfTheLineLacksTheGivenOne) {
    const ScratchFile file("BHID\tFrom\tTo\r\n1;2;3;4\n");
    const Header undelimited = readHeader(file.path(), ';');
    ASSERT_TRUE(undelimited.likely);
    EXPECT_EQ(undelimited.likely->delimiter, '\t');
    EXPECT_EQ(undelimited.likely->count, 2U);
    EXPECT_FALSE(readHeader(file.path(), 'F').likely);
    EXPECT_EQ(likelyDelimiterOfFile(file.path())->delimiter, '\t');
    EXPECT_FALSE(likelyDelimiterOfFile("/nowhere.csv"));
}

TEST(ReadPreview, GivesTenLinesAtMostEachWithOneLineFeed) {
    const std::string nine = "1\n2\n3\n4\n\n6\n7\n8\n9\n";
    const struct {
        std::string content, preview;
    } cases[] = {
        {"", "\n"},
        {"a", "a\n"},
        {nine, nine + "\n"},
        {nine + "10\n", nine + "10\n"},
        {nine + "10\n11\n", nine + "10\n"},
        {"a\r\nb\r\r\nc\r", "a\nb\r\nc\r\n"},
    };
    for (const auto &[content, preview] : cases) {
        EXPECT_EQ(readPreview(ScratchFile(content).path()), preview);
    }
}

TEST(FileHead, HoldsALongLineUpToTheRequestedLength) {
    const std::string line(200000, 'x');
    const ScratchFile file(line + "\nabc\r\nabcd\r\n" + line);
    EXPECT_EQ(readHeader(file.path(), ',').columns, Fields{line});
    EXPECT_EQ(readPreview(file.path(), 4), "xxxx\nabc\nabcd\nxxxx\n");
}

TEST(FileHead, IsEmptyIfTheFileCannotBeRead) {
    const std::string folder = std::filesystem::temp_directory_path().u8string();
    // A read of a device might never return.
    for (const std::string &path :
         {std::string(), folder, folder + "/nowhere.csv", std::string("/dev/zero"),
          std::string("NUL"), folder + "/not UTF-8: \xFF\xE9.csv"}) {
        EXPECT_EQ(readHeader(path, ',').columns, Fields()) << path;
        EXPECT_EQ(readPreview(path), std::string(10, '\n')) << path;
    }
}
