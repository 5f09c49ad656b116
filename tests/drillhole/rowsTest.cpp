// SPDX-License-Identifier: MIT

// Text cut into rows, and rows checked.

#include "examples/drillhole/rows/CsvFile.h"
#include "examples/drillhole/rows/Fault.h"
#include "examples/drillhole/rows/RowCheck.h"
#include "examples/drillhole/rows/text.h"

#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

using namespace drillhole;

namespace {

std::string fileOf(const std::string &text) {
    const std::string path = testing::TempDir() + "drillhole_rows_" + std::to_string(getpid());
    std::ofstream(path, std::ios::binary) << text;
    return path;
}

/// The rows as "1:[a][b]", with the lines in front, and why they are refused; the text is read in
/// pieces of that many bytes.
std::string cut(const std::string &text, char delimiter, std::size_t piece) {
    CsvFile file(fileOf(text), delimiter, piece);
    std::string rows;
    for (Row row; file.next(row);) {
        rows += (rows.empty() ? "" : " ") + linesOf(row.firstLine, row.lastLine) + ':';
        for (const std::string_view field : row.fields) {
            rows += '[' + std::string(field.substr(0, 40)) + ']';
        }
        rows += row.refusal != nullptr ? '!' + std::string(row.refusal).substr(0, 22) : "";
    }
    return rows;
}

TEST(CsvFile, CutsRowsAndCountsLines) {
    const std::string unclosed = "!a double quote opens h", text = "!text follows a double ";
    const struct {
        std::string text;
        char delimiter;
        std::string rows;
    } cases[] = {
        {"a,b\n1,2", ',', "1:[a][b] 2:[1][2]"},
        {"\xEF\xBB\xBF"
         "a,b\r\n\r\n1, 2 \r\n",
         ',', "1:[a][b] 3:[1][2]"},
        {"\"a,\"\"b\"\"\", \" c \"\n", ',', "1:[a,\"b\"][ c ]"},
        {"a,\"b\nc\"\n\n1,2\n", ',', "1-2:[a][b\nc] 4:[1][2]"},
        {"12\" core,x\n", ',', "1:[12\" core][x]"},
        {",a,\n", ',', "1:[][a][]"},
        {"a\rb,c\n", ',', "1:[a\rb][c]"},
        {"\ta\t\tb\n", '\t', "1:[][a][][b]"},
        {"  a   \"b c\" \t d  \n", ' ', "1:[a][b c][d]"},
        {"aSb\ncSd\n", 'S', "1:[a][b] 2:[c][d]"},
        {"a\"b\"c\n", '"', "1:[a][b][c]"},
        {"", ',', ""},
        {"\n \n,,,\n\"\",\n", ',', ""},
        {"1,\"5\" core\n2,x\n3,6\"\n", ',', "1:[1,\"5\" core]" + text + " 2:[2][x] 3:[3][6\"]"},
        {"1,\"5 core\n2,x\n3,6\" y\n", ',', "1:[1,\"5 core]" + text + " 2:[2][x] 3:[3][6\" y]"},
        {"a,b,c\n1,2,\"3\n4,5,6\n7,8,9\"\n", ',',
         "1:[a][b][c] 2:[1,2,\"3]" + unclosed + " 3:[4][5][6] 4:[7][8][9\"]"},
        {"\"a\nb\",\"c\n1,2\n", ',', "1-2:[\"a\nb\",\"c]" + unclosed + " 3:[1][2]"},
    };
    for (const auto &each : cases) {
        for (const auto piece : std::initializer_list<std::size_t>{1000, 3, 1}) {
            EXPECT_EQ(cut(each.text, each.delimiter, piece), each.rows) << each.text << piece;
        }
    }
    const std::string endless(5'000'000, 'x');
    EXPECT_EQ(cut(endless + "\nb,2", ',', 65536).substr(44), "!longer than 4 MiB 2:[b][2]");
    EXPECT_EQ(cut("a,\"" + endless + "\nb,2", ',', 65536).substr(44), unclosed + " 2:[b][2]");
    EXPECT_EQ(cut(std::string(200'000, ',') + "\nb,2", ',', 65536).substr(44),
              "!more than 100,000 fiel 2:[b][2]");
}

TEST(CsvFile, NamesAFileForWhatItIs) {
    const std::pair<std::string, const char *> cases[] = {
        {"a,b\r1,2\r", "carriage returns only"},
        {{"\xFF\xFE"
          "a\0,\0",
          6},
         "UTF-16"},
        {"sep=;\na;b\n", "note of its delimiter"},
    };
    for (const auto &[text, part] : cases) {
        try {
            cut(text, ',', 65536);
            ADD_FAILURE() << part;
        } catch (const Fault &fault) {
            EXPECT_NE(std::string(fault.what()).find(part), std::string::npos) << fault.what();
        }
    }
    EXPECT_THROW(CsvFile(fileOf("a"), '\n'), Fault);
    const std::string pipe = fileOf("");
    std::filesystem::remove(pipe);
    mkfifo(pipe.c_str(), 0600);
    EXPECT_THROW(CsvFile(pipe, ','), Fault) << "which would wait for ever";
    std::filesystem::remove(pipe);
}

TEST(CsvFile, NoticesThatItWasCutShortOrWentOn) {
    for (const char *const text : {"a,b\n1,2\n", "a,b\n1,2\n3,4\n5,6\n"}) {
        CsvFile file(fileOf("a,b\n1,2\n3,4\n"), ',', 4);
        Row row;
        file.next(row);
        fileOf(text);
        EXPECT_THROW(while (file.next(row)){}, Fault) << text;
    }
}

RowLayout layoutInOrder(std::size_t columns, std::size_t fields) {
    RowLayout layout;
    for (std::size_t i = 0; i < columns; ++i) {
        layout.positions.emplace_back(i);
    }
    layout.fieldCount = fields;
    return layout;
}

/// A check of rows whose fields are in order, as of a file; the holes have a length of 100.
struct Check {
    explicit Check(const char *table, char delimiter = ',', ValueChoices choices = {})
        : check(*findTable(table), layout(table, delimiter), std::move(choices),
                {{"LR-1", {100, {}}}, {"R\u00e9", {}}}, [this](const auto &) { return isThere; }) {}

    static RowLayout layout(const char *table, char delimiter) {
        RowLayout layout = layoutInOrder(findTable(table)->columns.size(), 10);
        layout.delimiter = delimiter;
        return layout;
    }

    /// Why the row is refused, or how much is to be said of it and what was said last.
    std::string operator()(const std::vector<std::string_view> &fields, std::size_t line = 1) {
        const std::string reason = check.check({line, line, fields, nullptr}, values);
        const std::vector<Remark> remarks = check.remarks().byKind();
        return !reason.empty() || remarks.empty()
                   ? reason
                   : remarks.back().text + " (" + remarks.back().lines + ')';
    }

    bool isThere = false;
    std::vector<Value> values;
    RowCheck check;
};

TEST(RowCheck, SaysWhyARowIsRefused) {
    using Fields = std::vector<std::string_view>;
    const std::string_view grade = "0.5", longName = "a name that has no end to speak of";
    const struct {
        const char *table;
        Fields fields;
        const char *reason;
        char delimiter = ',';
    } cases[] = {
        {"assay", {"LR-1", "0", "+1.5", "", "", grade, "", "yes", ""}, ""},
        {"assay", {"R\xE9", "0", "1e1", "", "", "", "", "", ""}, ""},
        {"assay",
         {longName, "0", "1", "", "", "", "", "", ""},
         "no collar is called \"a name that has no en...\""},
        {"assay",
         {"LR-1", "2", "2.0", "", "", "", "", "", ""},
         "fromdepth 2 is not below todepth 2.0"},
        {"assay", {"LR-1", "0", "1", "<0.01", "", "", "", "", ""}, "Au g/t \"<0.01\" is no number"},
        {"assay", {"LR-1", "0", "1", "1,5", "", "", "", "", ""}, "Au g/t \"1,5\" is no number"},
        {"assay", {"LR-1", "", "1", "", "", "", "", "", ""}, "fromdepth is empty"},
        {"assay", {"LR-1", "0", "1"}, "too few fields: 3 of 9"},
        {"assay", Fields(11, grade), "too many fields: 11 where a row has 10"},
        {"assay",
         {"LR-1", "0.0", "1", "92", "", "", "", "", "", "", ""},
         "too many fields: 11 where a row has 10"},
        {"assay",
         {"LR-1", "0.0", "1", grade, "", "", "", "", "", "", "", "7"},
         "too many fields: 12 where a row has 10"},
        {"assay", {"LR-1", "0.0", "1", grade, "", "", "", "", "", "", "", ""}, ""},
        {"assay", {"LR-1", "0", "1", grade, "", "", "", "", "", "", "", ""}, "", ';'},
        {"assay", Fields(9, grade), "too few fields: 9 of 10", ' '},
        {"assay", {"LR-1", "0", "1", "", "", "", {"\0", 1}, "", ""}, "duplicate holds a zero byte"},
        {"collar", {"LR-1", "0", "0", "", ""}, "there is a collar \"LR-1\" already"},
        {"collar", {"LR-2", "0", "0", "", ""}, ""},
        {"survey", {"LR-1", "0", "359", "north"}, "dip \"north\" is no number"},
    };
    for (const auto &each : cases) {
        Check check(each.table, each.delimiter);
        check({"a row that shows how long the rows are"});
        EXPECT_EQ(check(each.fields), each.reason);
    }
    Check collars("collar");
    collars({"LR-2", "0", "0", "", ""});
    EXPECT_EQ(collars({"LR-2", "1", "1", "", ""}), "there is a collar \"LR-2\" already");
}

TEST(RowCheck, WarnsOfWhatIsOdd) {
    const struct {
        const char *table;
        std::vector<std::string_view> fields;
        const char *remark;
    } cases[] = {
        {"survey", {"LR-1", "0", "400", "-60"}, "azimuth is not from 0 to 360"},
        {"survey", {"LR-1", "0", "360", "95"}, "dip is not from -90 to 90"},
        {"survey", {"LR-1", "100.5", "0", "0"}, "goes deeper than its hole is long"},
        {"collar", {"LR-2", "-9999", "0", "", ""}, "easting is -9999, perhaps a word for no value"},
        {"collar", {"LR-2", "1", "0", "", "-1"}, "length is below 0"},
        {"assay",
         {"LR-1", "99", "101", "", "", "", "", "", ""},
         "goes deeper than its hole is long"},
    };
    for (const auto &each : cases) {
        EXPECT_EQ(Check(each.table)(each.fields), std::string(each.remark) + ": 1 row (1)");
    }
    Check assays("assay");
    const auto assay = [&](const char *from, const char *to, std::size_t line) {
        return assays({"LR-1", from, to, "", "", "", "", "", ""}, line);
    };
    EXPECT_EQ(assay("10", "11", 2) + assay("11", "12", 3) + assay("8", "10.0000001", 4), "");
    EXPECT_EQ(assay("9", "10", 5), "overlaps another interval of its hole: 1 row (5)");
    EXPECT_EQ(assay("7", "13", 6), "overlaps another interval of its hole: 2 rows (5-6)");
    EXPECT_EQ(assay("12", "12.5", 9), "overlaps another interval of its hole: 3 rows (5-6, 9)");
    assays.isThere = true;
    EXPECT_EQ(assay("10", "11", 10), "there already");
}

TEST(RowCheck, TakesValuesAsTheUserChose) {
    const std::vector<std::string> words = {"NA", "-", "-9999"};
    const struct {
        BelowDetection belowDetection;
        const char *text;
        const char *gold; ///< as it comes, or "" for none
        const char *remark;
    } cases[] = {
        {BelowDetection::half, "<0.01", "0.005000", "Au g/t is below detection, half"},
        {BelowDetection::negative, "< 0,01", "-0.010000", "Au g/t is below detection, the limit"},
        {BelowDetection::empty, "<0.01", "", "Au g/t is below detection, left empty"},
        {BelowDetection::refused, "<0.01", "0.000000", "Au g/t \"<0.01\" is no number"},
        {BelowDetection::half, "<x", "0.000000", "Au g/t \"<x\" is no number"},
        {BelowDetection::half, "na", "", "Au g/t has a word for no value"},
        {BelowDetection::half, "-9999.0", "", "Au g/t has a word for no value"},
        {BelowDetection::half, "1,5", "1.500000", "Au g/t has a decimal comma"},
        {BelowDetection::half, "1,000.5", "0.000000", "Au g/t \"1,000.5\" is no number"},
    };
    for (const auto &each : cases) {
        Check assays("assay", ';', {each.belowDetection, words, true});
        EXPECT_EQ(assays({"LR-1", "0", "1", each.text, "", "", "", "", ""}).find(each.remark), 0U);
        const Value &gold = assays.values[3];
        EXPECT_EQ(gold.isNull ? "" : std::to_string(gold.number), each.gold) << each.text;
    }
    EXPECT_EQ(Check("assay", ';', {{}, words, true})({"LR-1", "NA", "1", "", "", "", "", "", ""}),
              "fromdepth is empty");
    EXPECT_EQ(Check("assay", ';', {{}, {}, false})({"LR-1", "0,5", "1", "", "", "", "", "", ""}),
              "fromdepth \"0,5\" is no number");
}

TEST(RowCheck, WantsTheColumnsThatNoRowCanDoWithout) {
    RowLayout layout = layoutInOrder(4, 4);
    layout.positions[2].reset();
    EXPECT_THROW(RowCheck(*findTable("survey"), layout, {}, {}, {}), Fault);
    layout = layoutInOrder(3, 4);
    EXPECT_NO_THROW(RowCheck(*findTable("collar"), layout, {}, {}, {}))
        << "elevation and length may lack";
}

TEST(ParseNumber, TakesWholeNumbersInPlainForm) {
    EXPECT_EQ(parseNumber("-12.50"), -12.5);
    EXPECT_EQ(parseNumber("+7"), 7);
    for (const char *text :
         {"", "+", "+-1", "1,5", "1 000", "12m", "nan", "inf", "0x10", "1e999"}) {
        EXPECT_EQ(parseNumber(text), std::nullopt) << text;
    }
}

} // namespace
