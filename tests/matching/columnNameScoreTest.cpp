#include "matching/columnNameScore.h"

#include <gtest/gtest.h>

using namespace columnimport;

TEST(ColumnNameScore, ClimbsFromTheMeasureOverSynonymsToEquality) {
    const std::string hundred(100, 'a');
    const struct {
        std::string a, b;
        double score;
    } cases[] = {
        {"", "", 1.0},
        {"az", "azimuth", 0.99},
        {"depth", "length", 0.99},
        {"xcollar", "xc", 0.0},
        {"hole_id", "holename", 15.0 / 32},
        {"abc", "xyz", -1.0 / 6},
        {hundred, hundred + "a", 0.25 * 199 * (1.0 / 100 + 1.0 / 101)},
    };
    for (const auto &[a, b, score] : cases) {
        EXPECT_NEAR(columnNameScore(a, b), score, 1e-12) << a << ' ' << b;
    }
}

TEST(LongestCommonSubstringLength, MeasuresOneUnbrokenRunWithinTheGivenLengths) {
    EXPECT_EQ(longestCommonSubstringLength("abcabcd", "xabcdx", 7, 6), 4);
    EXPECT_EQ(longestCommonSubstringLength("abcabcd", "xabcdx", 6, 3), 2);
    EXPECT_EQ(longestCommonSubstringLength("", "depth", 0, 5), 0);
}
