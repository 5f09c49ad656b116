// SPDX-License-Identifier: MIT

#include "delimited/likelyDelimiter.h"

#include <gtest/gtest.h>

using namespace columnimport;

TEST(LikelyDelimiter, SeparatesTitlesAndIsNotPartOfThem) {
    const struct {
        std::string line;
        char delimiter; // 0 for none
        std::size_t count;
    } cases[] = {
        {"HOLEID,EAST,NORTH", ',', 2},
        {"HOLEID\tFrom, m\tTo, m", '\t', 2},
        {"Hole|From|To", '|', 2},
        // Likely text only breaks ties.
        {"Tiefe 0,5 m;Au 1,2;Hole", ';', 2},
        {"1,2,3;4,5", ';', 1},
        {"1,2,3", ',', 2},
        {"Hole;Position, x, y, z", ';', 1},
        {"Hole, From, To (m; m)", ',', 2},
        {"Hole,Note; from, to", ',', 2},
        // Of several the most frequent, of equally many the rarest in titles.
        {"a;b,c", ';', 1},
        {"a;b,c,d", ',', 2},
        {"a|b;c\td,e", '\t', 1},
        // Quoted text does not count, unless a quote is left open.
        {"\"Au, Ag, Cu\";\"From\"", ';', 1},
        {"Size 5\",From,To", ',', 2},
        {"\"From,To\"", 0, 0},
        // Trimmed like the header, or the cut would give no further column.
        {"BHID\t\t\r", 0, 0},
        {"BHID,\r", ',', 1},
        // Blanks, if each word could be a title.
        {"HOLEID FROM TO", ' ', 2},
        {" x  y z ", ' ', 3},
        {"\"Hole\" \"From\" \"Au_1\"", ' ', 2},
        {"DDH1 0.5 -60", ' ', 2},
        {"Hole ID", 0, 0},
        {"Drill holes of the mine", 0, 0},
        {"From (m) To (m)", 0, 0},
        {"", 0, 0},
        {"profondeur", 0, 0},
    };
    for (const auto &[line, delimiter, count] : cases) {
        const auto likely = likelyDelimiter(line);
        EXPECT_EQ(likely ? likely->delimiter : 0, delimiter) << '"' << line << '"';
        EXPECT_EQ(likely ? likely->count : 0, count) << '"' << line << '"';
    }
}
