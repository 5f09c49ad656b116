#include "delimited/readHeader.h"
#include "delimited/readPreview.h"
#include "tests/ScratchFile.h"

#include <gtest/gtest.h>

using namespace columnimport;
using Fields = std::vector<std::string>;

namespace {

std::string lines(int count) {
    std::string text;
    for (int line = 1; line <= count; ++line) {
        text += "line " + std::to_string(line) + "\n";
    }
    return text;
}

} // namespace

TEST(ReadHeader, CutsTheFirstLineAndDropsTheQuotes) {
    const struct {
        std::string content;
        char delimiter;
        Fields fields;
    } cases[] = {
        {"Hole,From,To\r\n1,2,3\r\n", ',', {"Hole", "From", "To"}},
        {"only\rcarriage\rreturns", ',', {"only\rcarriage\rreturns"}},
        {"", ',', {}},
        {" \t\r\n1,2\n", ',', {}},
        {"a;b,c\n", ';', {"a", "b,c"}},
        {"\xEF\xBB\xBFHole,x\n", ',', {"\xEF\xBB\xBFHole", "x"}},
        {"\"a,b\",\" c \",'d',e\"\"f,\"\"\n", ',', {"a", "b", " c ", "'d'", "ef", ""}},
        {"TOP,THICK\n", 'T', {"", "OP,", "HICK"}},
        {std::string("a\0b\n", 4), '\0', {"a", "b"}},
    };
    for (const auto &row : cases) {
        const ScratchFile file(row.content);
        EXPECT_EQ(readHeader(file.path(), row.delimiter), row.fields) << row.content;
    }
}

TEST(ReadPreview, GivesTenLinesAtMostEachWithOneLineFeed) {
    const struct {
        std::string content, preview;
    } cases[] = {
        {"", "\n"},
        {"a\n", "a\n\n"},
        {"a\n\nb", "a\n\nb\n"},
        {lines(9), lines(9) + "\n"},
        {lines(10), lines(10)},
        {lines(11), lines(10)},
        {"a\r\nb\r\r\nc\r", "a\nb\r\nc\r\n"},
    };
    for (const auto &row : cases) {
        const ScratchFile file(row.content);
        EXPECT_EQ(readPreview(file.path()), row.preview);
    }
}

TEST(FileHead, OfWhatIsNoReadableFileIsEmpty) {
    const std::string folder = std::filesystem::temp_directory_path().u8string();
    // A read of a device might never return.
    for (const std::string &path :
         {std::string(), std::string("/nowhere/at all.csv"), folder, std::string("/dev/zero"),
          std::string("NUL"), folder + "/not UTF-8: \xFF\xE9.csv"}) {
        EXPECT_EQ(readHeader(path, ','), Fields()) << path;
        EXPECT_EQ(readPreview(path), std::string(10, '\n')) << path;
    }
}

TEST(FileHead, IsReadAnewEachTime) {
    const ScratchFile file("a,b\n");
    EXPECT_EQ(readHeader(file.path(), ','), (Fields{"a", "b"}));
    std::ofstream(file.path()) << "c\n";
    EXPECT_EQ(readHeader(file.path(), ','), (Fields{"c"}));
}
