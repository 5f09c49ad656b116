#include "delimited/splitLine.h"

#include <random>

#include <gtest/gtest.h>

using namespace columnimport;
using namespace std::string_literals;
using Fields = std::vector<std::string>;

namespace {

struct Line {
    std::string line;
    std::string delimiter;
    Fields fields;
};

Fields fieldsOf(const std::string &line, const std::string &delimiter) {
    Fields fields{"left over from before"};
    splitLine(line, fields, delimiter);
    return fields;
}

/// The cut as a person would do it by hand, field after field off the front of the line.
Fields fieldsOneByOne(const std::string &line, const std::string &delimiter) {
    std::string rest = trimLeft(trimRight(line, blankChars), blankChars);
    Fields fields;
    if (rest.empty()) {
        return fields;
    }
    while (rest.find(delimiter) != std::string::npos) {
        fields.push_back(popField(rest, delimiter));
    }
    fields.push_back(rest);
    return fields;
}

} // namespace

TEST(SplitLine, CutsAndTrimsByTheBytesAlone) {
    const Line lines[] = {
        {"a,b,c", ",", {"a", "b", "c"}},
        {"  a , b  ", ",", {"a", "b"}},
        {"a, ,b", ",", {"a", "", "b"}},
        {"a,b, ", ",", {"a", "b", ""}},
        {",,", ",", {"", "", ""}},
        {"a,b", ";", {"a,b"}},
        {"", ",", {}},
        {"  \t\r\n ", ",", {}},
        {"a  b   c", " ", {"a", "b", "c"}},
        {" a b ", " ", {"a", "b"}},
        {"a\tb c", " ", {"a\tb", "c"}},
        {"a \t b", " ", {"a", "b"}},
        {"a\t \tb", "\t", {"a", "b"}},
        {"a b\tc d", "\t", {"a b", "c d"}},
        {"\ta\tb\t", "\t", {"a", "b"}},
        {"\"a,b\",c", ",", {"\"a", "b\"", "c"}},
        {"a--b-c", "--", {"a", "b-c"}},
        {"a", "--", {"a"}},
        {"\v a\f,\xA0", ",", {"\v a\f", "\xA0"}},
    };
    for (const Line &line : lines) {
        EXPECT_EQ(fieldsOf(line.line, line.delimiter), line.fields) << '"' << line.line << '"';
    }
}

TEST(SplitLine, AgreesWithCuttingFieldByField) {
    std::mt19937 random(20);
    std::uniform_int_distribution<int> length(0, 24);
    const std::string bytes = "a,b;\t \r\n\"\0"s.append("\xE9");
    std::uniform_int_distribution<std::size_t> byte(0, bytes.size() - 1);
    for (int round = 0; round < 20000; ++round) {
        std::string line;
        for (int left = length(random); left > 0; --left) {
            line += bytes[byte(random)];
        }
        const std::string delimiter(1, bytes[byte(random)]);
        ASSERT_EQ(fieldsOf(line, delimiter), fieldsOneByOne(line, delimiter)) << line;
    }
}

TEST(TrimLeftAndRight, TakeOnlyTheGivenBytesOffTheirOwnEnd) {
    EXPECT_EQ(trimRight("xxaxx", "x"), "xxa");
    EXPECT_EQ(trimLeft("xxaxx", "x"), "axx");
    EXPECT_EQ(trimRight("xyx", "xy"), "");
    EXPECT_EQ(trimLeft("xyx", "xy"), "");
    EXPECT_EQ(trimRight("a ", ""), "a ");
}
