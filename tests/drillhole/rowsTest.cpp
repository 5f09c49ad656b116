// SPDX-License-Identifier: MIT

// Text cut into rows, and rows checked.

#include "examples/drillhole/rows/CsvParser.h"
#include "examples/drillhole/rows/Fault.h"
#include "examples/drillhole/rows/RowCheck.h"

#include <gtest/gtest.h>

using namespace drillhole;

namespace {

/// The rows as "1:[a][b]", with the lines in front; the text is given in pieces of that many bytes.
std::string cut(const std::string &text, char delimiter, std::size_t piece) {
    CsvParser parser(delimiter);
    std::string rows;
    Row row;
    const auto takeRows = [&] {
        while (parser.next(row)) {
            rows += (rows.empty() ? "" : " ") + std::to_string(row.firstLine) +
                    (row.lastLine > row.firstLine ? "-" + std::to_string(row.lastLine) : "") + ':';
            for (const std::string_view field : row.fields) {
                rows += '[' + std::string(field) + ']';
            }
        }
    };
    for (std::size_t begin = 0; begin < text.size(); begin += piece) {
        parser.parse(std::string_view(text).substr(begin, piece));
        takeRows();
    }
    parser.finish();
    takeRows();
    return rows;
}

TEST(CsvParser, CutsRowsAndCountsLines) {
    const struct {
        const char *text;
        char delimiter;
        const char *rows;
    } cases[] = {
        {"a,b\n1,2", ',', "1:[a][b] 2:[1][2]"},
        {"a,b\r\n\r\n1, 2 \r\n", ',', "1:[a][b] 3:[1][2]"},
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
        {"\n \n", ',', ""},
    };
    for (const auto &each : cases) {
        for (const auto piece : std::initializer_list<std::size_t>{1000, 3, 1}) {
            EXPECT_EQ(cut(each.text, each.delimiter, piece), each.rows) << each.text << piece;
        }
    }
}

TEST(CsvParser, NamesTheLineOfAQuoteThatDoesNotClose) {
    for (const std::string &text :
         {std::string("a\n\"b\nc\n"), "a\n\"" + std::string(3'000'000, 'x')}) {
        try {
            cut(text, ',', 65536);
            ADD_FAILURE();
        } catch (const Fault &fault) {
            EXPECT_EQ(std::string(fault.what()).substr(0, 7), "Line 2:");
        }
    }
    EXPECT_THROW(CsvParser('\n'), Fault);
}

RowLayout layoutInOrder(std::size_t columns, std::size_t fields) {
    RowLayout layout;
    for (std::size_t i = 0; i < columns; ++i) {
        layout.positions.emplace_back(i);
    }
    layout.fieldCount = fields;
    return layout;
}

std::string reasonFor(const char *table, const std::vector<std::string_view> &fields,
                      bool mustBeWhole = false) {
    RowLayout layout = layoutInOrder(findTable(table)->columns.size(), 10);
    layout.mustBeWhole = mustBeWhole;
    RowCheck check(*findTable(table), layout, {"LR-1", "Ré"});
    std::vector<Value> values;
    return check.check({1, 1, fields}, values);
}

TEST(RowCheck, SaysWhyARowIsRefused) {
    const std::string_view grade = "0.5";
    EXPECT_EQ(reasonFor("assay", {"LR-1", "0", "+1.5", "", "", grade, "", "yes", ""}), "");
    EXPECT_EQ(reasonFor("assay", {"R\xE9", "0", "1e1", "", "", "", "", "", ""}), "") << "Latin-1";
    EXPECT_EQ(reasonFor("assay", {"LR-2", "0", "1", "", "", "", "", "", ""}),
              "no collar is called \"LR-2\"");
    EXPECT_EQ(reasonFor("assay", {"LR-1", "2", "2.0", "", "", "", "", "", ""}),
              "fromdepth 2 is not below todepth 2.0");
    EXPECT_EQ(reasonFor("assay", {"LR-1", "0", "1", "<0.01", "", "", "", "", ""}),
              "Au g/t \"<0.01\" is no number");
    EXPECT_EQ(reasonFor("assay", {"LR-1", "", "1", "", "", "", "", "", ""}), "fromdepth is empty");
    EXPECT_EQ(reasonFor("assay", {"LR-1", "0", "1"}), "too few fields: 3 of 9");
    EXPECT_EQ(reasonFor("assay", std::vector<std::string_view>(11, grade)),
              "too many fields: 11 where a row has 10");
    EXPECT_EQ(reasonFor("assay", std::vector<std::string_view>(9, grade), true),
              "too few fields: 9 of 10");
    EXPECT_EQ(reasonFor("assay", {"LR-1", "0", "1", "", "", "", std::string_view("\0", 1), "", ""}),
              "duplicate holds a zero byte");
    EXPECT_EQ(reasonFor("collar", {"LR-1", "0", "0", "", ""}),
              "there is a collar \"LR-1\" already");
    EXPECT_EQ(reasonFor("collar", {"LR-2", "0", "0", "", ""}), "");
    EXPECT_EQ(reasonFor("survey", {"LR-1", "0", "359", "north"}), "dip \"north\" is no number");
}

TEST(RowCheck, WantsTheColumnsThatNoRowCanDoWithout) {
    RowLayout layout = layoutInOrder(4, 4);
    layout.positions[2].reset();
    EXPECT_THROW(RowCheck(*findTable("survey"), layout, {}), Fault);
    layout = layoutInOrder(3, 4);
    EXPECT_NO_THROW(RowCheck(*findTable("collar"), layout, {})) << "elevation and length may lack";
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
