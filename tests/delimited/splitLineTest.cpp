// SPDX-License-Identifier: MIT

#include "delimited/splitLine.h"

#include <gtest/gtest.h>

using namespace columnimport;
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

TEST(TrimLeftAndRight, RemoveOnlyTheGivenBytesFromTheirEnd) {
    EXPECT_EQ(trimRight("xyaxy", "xy"), "xya");
    EXPECT_EQ(trimLeft("xyaxy", "xy"), "axy");
    EXPECT_EQ(trimRight("xyx", "xy") + trimLeft("xyx", "xy"), "");
}
