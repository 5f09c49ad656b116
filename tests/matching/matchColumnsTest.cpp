#include "matching/matchColumns.h"

#include <gtest/gtest.h>

#include <cmath>

#include "matching/columnNameScore.h"

using namespace columnimport;

TEST(MatchColumns, ProposesTheFirstOfTheBestFits) {
    const struct {
        std::vector<std::string> app, file;
        std::vector<std::int32_t> proposal;
    } cases[] = {
        {{"holename", "x", "dip"}, {"BHID", "UTM X", "Au g/t"}, {0, 1, -1}},
        {{}, {"x"}, {}},
        {{"x", "y"}, {}, {-1, -1}},
        // Equal votes for one column.
        {{"sample"}, {"samples", "sample2"}, {0}},
        // A vote that two columns are equally good for, in the last case with 0.5 at two lengths.
        {{"easting", "x"}, {"coordx"}, {0, -1}},
        {{"Depth", "depth"}, {"DEPTH", "depth"}, {0, -1}},
        {{"abd", "abcxyd"}, {"abcdef"}, {0, -1}},
        // The stronger vote wins, and the weaker one is lost to the column that it fits less.
        {{"sample_number", "sample_no"}, {"sample_numb", "sample_numbers"}, {1, -1}},
    };
    for (const auto &[app, file, proposal] : cases) {
        EXPECT_EQ(matchColumns(app, file), proposal) << testing::PrintToString(file);
    }
}

TEST(MatchColumns, AScoreOfExactlyTheThresholdIsRefusedAndTheNextDoubleTaken) {
    // 33 shared bytes and a run of 32 make 0.4 too, but for the rounding.
    const std::string app = std::string(32, 'a') + "b" + std::string(27, 'c');
    const std::string file = std::string(32, 'a') + std::string(87, 'd') + "b";
    EXPECT_EQ(columnNameScore("abcde", "abdxy"), 0.4);
    EXPECT_EQ(columnNameScore(app, file), std::nextafter(0.4, 1.0));
    EXPECT_EQ(matchColumns({"abcde", app}, {"abdxy", file}), (std::vector<std::int32_t>{-1, 1}));
}
