// SPDX-License-Identifier: MIT

#include "delimited/splitLine.h"
#include "delimited/isUtf8.h"

#include <gtest/gtest.h>

using namespace columnimport;
using namespace std::string_literals;
using Fields = std::vector<std::string>;

TEST(SplitLine, CutsAndTrimsByTheBytesAlone) {
    const struct {
        std::string line, delimiter;
        Fields fields;
    } cases[] = {
        {"  a , b;c,, ", ",", {"a", "b;c", "", ""}},
        {" \t\r\n ", ",", {}},
        {" a  b \t c\td ", " ", {"a", "b", "c\td"}},
        {"\ta b\t \tc\t", "\t", {"a b", "c"}},
        {"\"a,b\"", ",", {"\"a", "b\""}},
        {"a--b-c", "--", {"a", "b-c"}},
        {"\v a\f,\xA0", ",", {"\v a\f", "\xA0"}},
    };
    for (const auto &[line, delimiter, wanted] : cases) {
        Fields fields{"left over from before"};
        splitLine(line, fields, delimiter);
        EXPECT_EQ(fields, wanted) << '"' << line << '"';
    }
}

TEST(PopField, LeavesTheTrimmedRestAndNothingBehindTheLastField) {
    std::string rest = " a , b,c";
    EXPECT_EQ(popField(rest, ","), "a");
    EXPECT_EQ(rest, "b,c");
    EXPECT_EQ(popField(rest, ";"), "b,c");
    EXPECT_EQ(rest, "");
}

TEST(TrimLeftAndRight, TakeOnlyTheGivenBytesOffTheirOwnEnd) {
    EXPECT_EQ(trimRight("xyaxy", "xy"), "xya");
    EXPECT_EQ(trimLeft("xyaxy", "xy"), "axy");
    EXPECT_EQ(trimRight("xyx", "xy") + trimLeft("xyx", "xy"), "");
}

TEST(IsUtf8, HoldsUpToTheEndsOfEachForm) {
    EXPECT_TRUE(isUtf8("a\0\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80"
                       "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"s));
    for (const char *bytes :
         {"\x80", "\xC2", "\xC2\x61", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xED\xBF\xBF",
          "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80"}) {
        EXPECT_FALSE(isUtf8(bytes));
    }
}
