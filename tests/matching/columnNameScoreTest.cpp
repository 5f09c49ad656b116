#include "matching/columnNameScore.h"

#include <gtest/gtest.h>

using namespace columnimport;

TEST(ColumnNameScore, ClimbsFromTheMeasureOverSynonymsToEqualityBothWays) {
    const std::string hundred(100, 'a');
    const struct {
        std::string a, b;
        double score;
    } cases[] = {
        {"", "", 1.0},
        {"az", "azimuth", 0.99},
        {"easting", "xc", 0.99},
        {"depth", "length", 0.99},
        {"profondeur", "depth", 0.3},
        {"holeid", "bhid", 5.0 / 12},
        {"", "holename", 0.0},
        {"xcollar", "xc", 0.0},
        {"hole_id", "holename", 15.0 / 32},
        {"sample", "samples", 143.0 / 168},
        {"abc", "xyz", -1.0 / 6},
        {hundred, hundred + "a", 0.25 * 199 * (1.0 / 100 + 1.0 / 101)},
    };
    for (const auto &[a, b, score] : cases) {
        EXPECT_NEAR(columnNameScore(a, b), score, 1e-12) << a << ' ' << b;
        EXPECT_NEAR(columnNameScore(b, a), score, 1e-12) << b << ' ' << a;
    }
}

TEST(LongestCommonSubstringLength, MeasuresOneUnbrokenRunWithinTheGivenLengths) {
    EXPECT_EQ(longestCommonSubstringLength("abcabcd", "xabcdx", 7, 6), 4);
    EXPECT_EQ(longestCommonSubstringLength("abcabcd", "xabcdx", 6, 6), 3);
    EXPECT_EQ(longestCommonSubstringLength("abcabcd", "xabcdx", 7, 3), 2);
    EXPECT_EQ(longestCommonSubstringLength("", "depth", 0, 5), 0);
}
