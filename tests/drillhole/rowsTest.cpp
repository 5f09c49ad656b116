// SPDX-License-Identifier: MIT

// Text cut into rows, and rows checked.

#include "drillhole/rows/CsvFile.h"
#include "drillhole/rows/Fault.h"
#include "drillhole/rows/RowCheck.h"
#include "drillhole/rows/text.h"

#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

using namespace drillhole;

namespace {

std::string fileOf(std::string_view text) {
    std::string path = testing::TempDir() + "drillhole_rows_" + std::to_string(getpid());
    std::ofstream(path, std::ios::binary) << text;
    return path;
}

/// The rows as "1:[a][b]", with the lines in front and "!" behind one that is refused, or why the
/// file is.
std::string cut(std::string_view text, char delimiter) {
    try {
        CsvFile file(fileOf(text), delimiter);
        std::string rows;
        for (Row row; file.next(row); rows += ' ') {
            rows += linesOf(row.firstLine, row.lastLine) + ':';
            for (const std::string_view field : row.fields) {
                rows += '[' + std::string(field.substr(0, 9)) + ']';
            }
            rows += row.refusal != nullptr ? "!" : "";
        }
        return rows;
    } catch (const Fault &fault) {
        return fault.what();
    }
}

TEST(CsvFile, CutsRowsAndCountsLines) {
    std::string endless;
    endless.resize(9'000'000, 'x');
    const std::pair<std::string, std::string> cases[] = {
        {"\xEF\xBB\xBF" + std::string("a,b\r\n\r\n1, 2 \r\n"), "1:[a][b] 3:[1][2] "},
        {"\"a,\"\"b\"\"\", \" c \"\n", "1:[a,\"b\"][ c ] "},
        {"a,\"b\nc\"\n\n1,2\n", "1-2:[a][b\nc] 4:[1][2] "},
        {"a\rb,,c,\n", "1:[a\rb][][c][] "},
        {"\ta\t\tb\n", "1:[][a][][b] "},
        {"  a   \"b c\" \t d  \n", "1:[a][b c][d] "},
        {"a\"b\"c\n", "1:[a][b][c] "},
        {"\n \n,,,\n\"\",\n", ""},
        {"1,\"5 core\n2,x\n3,6\" y\n", "1:[1,\"5 core]! 2:[2][x] 3:[3][6\" y] "},
        {"a,b,c\n1,2,\"3\n4,5,6\n7,8,\"\n", "1:[a][b][c] 2:[1,2,\"3]! 3:[4][5][6] 4:[7,8,\"]! "},
        {"\"a\nb\",\"c\n1,2\n", "1-2:[\"a\nb\",\"c]! 3:[1][2] "},
        {"a\t,b \t\n", "1:[a][b] "},
        {"sep=;\n# made by hand\na,b\n1,2\n", "3:[a][b] 4:[1][2] "},
        {"#,b\n1,2\n", "1:[#][b] 2:[1][2] "},
        {std::string(65'532, 'x') + ",\"a\nb\"\nc,2", "1-2:[xxxxxxxxx][a\nb] 3:[c][2] "},
        {"a,b\n" + std::string(65'526, 'x') + ",\"a\" b,c\n1,2",
         "1:[a][b] 2:[xxxxxxxxx]! 3:[1][2] "},
        {endless + "\nb,2", "1:[xxxxxxxxx]! 2:[b][2] "},
        {"a,\"" + endless + "\nb,2", "1:[a,\"xxxxxx]! 2:[b][2] "},
        {std::string(200'000, ',') + "\nb,2", "1:[,,,,,,,,,]! 2:[b][2] "},
    };
    const std::string delimiters = ",,,,\t \"";
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        const auto &[text, rows] = cases[i];
        EXPECT_EQ(cut(text, i < delimiters.size() ? delimiters[i] : ','), rows);
    }
}

TEST(CsvFile, RefusesFilesThatAreNoLinesOfText) {
    EXPECT_EQ(cut("a,b\r1,2\r", ',').rfind("The file's lines end in carriage returns", 0), 0U);
    EXPECT_EQ(cut({"\xFF\xFE\n\0\x61\0", 6}, ',').rfind("The file is no text", 0), 0U);
    const std::string pipe = fileOf("a");
    EXPECT_THROW(CsvFile(pipe, '\n'), Fault);
    std::filesystem::remove(pipe);
    mkfifo(pipe.c_str(), 0600);
    EXPECT_THROW(CsvFile(pipe, ','), Fault) << "which would wait for ever";
    std::filesystem::remove(pipe);
}

TEST(CsvFile, NoticesThatItShrinksOrGrows) {
    for (const char *const text : {"a,b\n1,2\n", "a,b\n1,2\n3,4\n5,6\n"}) {
        CsvFile file(fileOf("a,b\n1,2\n3,4\n"), ',');
        Row row;
        file.next(row);
        fileOf(text);
        EXPECT_THROW(while (file.next(row)){}, Fault) << text;
    }
}

/// A check of rows of a file whose fields are in order; they are given with bars between them. Of
/// the elements there are Au, Cu and Zn. The holes LR-1, 100 long, and R\u00e9 have collars.
struct Check {
    explicit Check(const char *name, char delimiter = ',', ValueChoices choices = {})
        : table(*findTable(name)), check(table, layout(table, delimiter), std::move(choices),
                                         {{"LR-1", {100}}, {"R\u00e9", {}}},
                                         {[this] { return isThere; },
                                          [this](Holes &holes) {
                                              for (const std::vector<Value> &row : taken) {
                                                  holes[row[0].text].depths += depthsOf(table, row);
                                              }
                                          }}) {
        (*this)("a row that shows how long the rows are");
    }

    static RowLayout layout(const Table &table, char delimiter) {
        RowLayout layout{{}, delimiter, std::vector<std::string>(10)};
        std::size_t count = 0;
        for (const Column &column : table.columns) {
            const bool isThere = !column.isGrade || count < 6;
            layout.positions.push_back(isThere ? std::optional(count++) : std::nullopt);
        }
        return layout;
    }

    /// Why the row is refused, or what was said last of rows that fit.
    std::string operator()(std::string_view fields, std::size_t line = 1) {
        Row row{line, line, {}, nullptr};
        for (std::size_t begin = 0, end = 0; end != std::string_view::npos; begin = end + 1) {
            end = fields.find('|', begin);
            row.fields.push_back(fields.substr(begin, end - begin));
        }
        check.learn(row);
        const std::string reason = check.check(row, values);
        if (reason.empty()) {
            taken.push_back(values);
        }
        const std::vector<Remark> remarks = check.remarks().byKind();
        return !reason.empty() || remarks.empty()
                   ? reason
                   : remarks.back().text + " (" + remarks.back().lines + ')';
    }

    bool isThere = false;
    const Table &table;
    std::vector<std::vector<Value>> taken;
    std::vector<Value> values;
    RowCheck check;
};

TEST(RowCheck, GivesTheReasonForARefusedRow) {
    using namespace std::string_view_literals;
    const std::tuple<const char *, std::string_view, const char *> cases[] = {
        {"assay", "LR-1|0|+1.5|||0.5||yes|", ""},
        {"assay", "R\xE9|0|1e1||||||", ""},
        {"assay", "a name that has no end to it|0|1||||||",
         "no collar is called \"a name that has no en...\""},
        {"assay", "LR-1|0|1|1,5||||||", "Au g/t \"1,5\" is no number"},
        {"assay", "LR-1\t\u00a0|0|1||||||", ""},
        {"assay", "LR-1|0.0|1|92|||||||", "too many fields: 11 where a row has 10"},
        {"assay", "LR-1|0.0|1|0.5||||||||7", "too many fields: 12 where a row has 10"},
        {"assay", "LR-1|0.0|1|0.5||||||||", ""},
        {"assay", "LR-1|0|1||||\0||"sv, "duplicate holds a zero byte"},
        {"survey", "LR-1|0|400|-60", "azimuth is not from 0 to 360: 1 row (1)"},
        {"survey", "LR-1|0|360|95", "dip is not from -90 to 90: 1 row (1)"},
        {"survey", "R\u00e9|16000|0|0", "depth is not from 0 to 15000: 1 row (1)"},
        {"survey", "LR-1|0|90\u00b0|-60\xB0", "dip has a degree sign, left out: 1 row (1)"},
        {"survey", "LR-1|100.5|0|0", "goes deeper than its hole is long: 1 row (1)"},
        {"collar", "LR-2|-9999|0||", "easting is -9999, perhaps a word for no value: 1 row (1)"},
        {"collar", "LR-2|1|0||-1", "length is not from 0 to 15000: 1 row (1)"},
        {"assay", "LR-1|99|101||||||", "goes deeper than its hole is long: 1 row (1)"},
    };
    for (const auto &[table, fields, reason] : cases) {
        EXPECT_EQ(Check(table)(fields), reason);
    }
    EXPECT_EQ(Check("assay", ';')("LR-1|0|1|0.5||||||||"), "");
    EXPECT_EQ(Check("assay", ' ')("1|2|3|4|5|6|7|8|9"), "too few fields: 9 of 10");
    Check collars("collar");
    EXPECT_EQ(collars("LR-2|0|0||"), "");
    EXPECT_EQ(collars("LR-2|1|1||"), "there is a collar \"LR-2\" already");
    EXPECT_EQ(collars("lr-2|1|1||"), "") << "at another place";
    EXPECT_EQ(collars("lR-2|0|0||", 7),
              "stands where one of the same name stands, but for capitals: 1 row (7)");
    Check surveys("survey");
    EXPECT_EQ(surveys("LR-1|0|0|-60"), "");
    EXPECT_EQ(surveys("LR-1|9|0|-61"), "");
    EXPECT_EQ(surveys("LR-1|19|0|61", 3),
              "dip has another sign than before in its hole: 1 row (3)");
    RowLayout layout = Check::layout(*findTable("survey"), ',');
    layout.positions[2].reset();
    EXPECT_THROW(RowCheck(*findTable("survey"), layout, {}, {}, RowQuestions()), Fault)
        << "azimuth is needed";
}

TEST(RowCheck, FindsOverlappingIntervals) {
    Check assays("assay");
    for (const char *const meets : {"10|11", "8|10.0000001", "10.9999999|12"}) {
        EXPECT_EQ(assays(std::string("LR-1|") + meets + "||||||"), "") << meets;
    }
    EXPECT_EQ(assays("LR-1|9|10||||||", 5), "overlaps another interval of its hole: 1 row (5)");
    EXPECT_EQ(assays("LR-1|7|13||||||", 6), "overlaps another interval of its hole: 2 rows (5-6)");
    EXPECT_EQ(assays("LR-1|12|12.5||||||", 9),
              "overlaps another interval of its hole: 3 rows (5-6, 9)");
    assays.isThere = true;
    EXPECT_EQ(assays("LR-1|10|11||||||"), "there already");
}

TEST(RowCheck, TakesValuesAsTheUserChose) {
    const std::tuple<BelowDetection, const char *, const char *, const char *> cases[] = {
        {BelowDetection::half, "<0.01", "0.005000", "Au g/t is below detection, half"},
        {BelowDetection::negative, "< 0,01", "-0.010000", "Au g/t is below detection, the limit"},
        {BelowDetection::empty, "<0.01", "", "Au g/t is below detection, left empty"},
        {BelowDetection::refused, "<0.01", "0.000000", "Au g/t \"<0.01\" is no number"},
        {BelowDetection::half, "<x", "0.000000", "Au g/t \"<x\" is no number"},
        {BelowDetection::half, "na", "", "Au g/t has a word for no value"},
        {BelowDetection::half, "-", "", "Au g/t has a word for no value"},
        {BelowDetection::half, "-9999.0", "", "Au g/t has a word for no value"},
        {BelowDetection::half, "1,5", "1.500000", "Au g/t has a decimal comma"},
        {BelowDetection::half, "1,000.5", "0.000000", "Au g/t \"1,000.5\" is no number"},
    };
    const std::vector<std::string> words = {"NA", "-", "-9999"};
    for (const auto &[belowDetection, text, gold, remark] : cases) {
        Check assays("assay", ';', {belowDetection, words});
        const std::string said = assays(std::string("LR-1|0|1|") + text + "|||||");
        EXPECT_EQ(said.find(remark), 0U) << said;
        const Value &value = assays.values[3];
        EXPECT_EQ(value.isNull ? "" : std::to_string(value.number), gold) << text;
    }
    EXPECT_EQ(Check("assay", ';', {{}, words})("LR-1|NA|1||||||"), "fromdepth is empty");
    EXPECT_EQ(Check("assay", ';', {{}, {}, DecimalMark::point})("LR-1|0,5|1||||||"),
              "fromdepth \"0,5\" is no number");
}

TEST(DecimalMarks, AreDistinguishedFromThousandsByTheOtherNumbers) {
    const struct {
        std::vector<const char *> others; ///< two of the same column, then one of another
        const char *text;
        std::optional<double> number;
        DecimalMark choice = DecimalMark::asShown;
        char delimiter = ';';
    } cases[] = {
        {{}, "1,234", {}},
        {{}, "-634.210", {}},
        {{}, "634", 634},
        {{}, "0,234", 0.234},
        {{}, "1234,567", 1234.567},
        {{"0,5"}, "1,234", 1.234},
        {{"0,5"}, "634.210", {}},
        {{"12.5"}, "634.210", 634.21},
        {{"12.5"}, "1,234", {}},
        {{"0,5", "12.5"}, "1,234", {}},
        {{"0,5", "12.5"}, "1,5", 1.5},
        {{"7", "634.210", "0,5"}, "634.210", {}},
        {{"7", "634.210", "5.5"}, "634.210", 634.21},
        {{"12.5"}, "1.234,5", {}},
        {{}, "1,234", 1.234, DecimalMark::comma},
        {{}, "634.210", {}, DecimalMark::comma},
        {{}, "634.210", 634.21, DecimalMark::point},
        {{"0,5"}, "1,5", {}, DecimalMark::point},
        {{}, "634.210", 634.21, DecimalMark::asShown, ','},
        {{}, "1,5", {}, DecimalMark::asShown, ','},
        {{}, "1,5", 1.5, DecimalMark::asShown, '\t'},
    };
    for (const auto &each : cases) {
        DecimalMarks marks(each.choice, each.delimiter, 2);
        for (std::size_t i = 0; i < each.others.size(); ++i) {
            marks.learn(i / 2, each.others[i]);
        }
        EXPECT_EQ(marks.numberIn(0, each.text), each.number) << each.text;
    }
}

TEST(HoleTables, DistinguishUnits) {
    const std::tuple<const char *, const char *, std::optional<double>> cases[] = {
        {"Cu_ppm", "Cu %", 0.0001},  {"Au_ppb", "Au g/t", 0.001}, {"Au ppm", "Au g/t", 1},
        {"Mo (%)", "Mo ppm", 10000}, {"Cu", "Cu %", {}},          {"length", "Cu %", {}},
    };
    for (const auto &[title, grade, factor] : cases) {
        EXPECT_EQ(unitFactor(title, grade), factor) << title;
    }
}

TEST(Text, IsReadAsUtf8OrWindows1252AndNumbersInPlainForm) {
    EXPECT_EQ(asUtf8("\u00e9") + asUtf8("\x80") + asUtf8("\x81\xE9"), "\u00e9\u20ac\u0081\u00e9");
    EXPECT_EQ(parseNumber("-12.50"), -12.5);
    for (const char *text : {"", "+", "+-1", "1,5", "nan", "inf", "0x10", "1e999"}) {
        EXPECT_EQ(parseNumber(text), std::nullopt) << text;
    }
}

} // namespace
