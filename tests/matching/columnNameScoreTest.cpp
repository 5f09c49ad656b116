#include "matching/columnNameScore.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "matching/areSynonyms.h"

namespace columnimport {
namespace {

std::int32_t run(const std::string &a, const std::string &b) {
    return longestCommonSubstringLength(a, b, static_cast<std::int32_t>(a.size()),
                                        static_cast<std::int32_t>(b.size()));
}

TEST(AreSynonyms, LinksAHeadWordToItsOwnListedWordsOnly) {
    struct Case {
        std::string a, b;
        bool synonyms;
    };
    const std::vector<Case> cases = {
        {"holename", "bhid", true},
        {"holeid", "bhid", false},
        {"x", "easting", true},
        {"x", "xc", true},
        {"easting", "xc", true},
        {"easting", "northing", false},
        {"coordx", "utm_x", false},
        {"y", "y_utm", true},
        {"z", "utm_z", true},
        {"z", "z_utm", false},
        {"depth", "length", true},
        {"length", "profondeur", true},
        {"depth", "profondeur", false},
        {"at", "length", false},
        {"hole_id", "holename", false},
        {"plong_e", "dip", false},
        {"azimuth", "brg", true},
        {"todepth", "to", true},
        {"fromdepth", "to", false},
        {"standarderror", "lognominalstandarderror", true},
        {"holename", "holenam", false},
        {"holename", "", false},
        {"", "", false},
        {"easting", "x ", false},
    };
    for (const Case &one : cases) {
        EXPECT_EQ(areSynonyms(one.a, one.b), one.synonyms) << one.a << ' ' << one.b;
        EXPECT_EQ(areSynonyms(one.b, one.a), one.synonyms) << one.b << ' ' << one.a;
    }
}

TEST(ColumnNameScore, ClimbsFromTheMeasureOverSynonymsToEquality) {
    const std::string hundred(100, 'a');
    struct Case {
        std::string a, b;
        double score;
    };
    const std::vector<Case> cases = {
        {"", "", 1.0},
        {"xutm", "xutm", 1.0},
        {"az", "azimuth", 0.99},
        {"to", "todepth", 0.99},
        {"", "holename", 0.0},
        {"xc", "yc", 0.0},
        {"xcollar", "xc", 0.0},
        {"holeid", "bhid", 5.0 / 12},
        {"hole_id", "holeid", 39.0 / 56},
        {"hole_id", "holename", 15.0 / 32},
        {"profondeur", "depth", 0.3},
        {"coordx", "utmx", 5.0 / 48},
        {"au_gt", "au_ppm", 11.0 / 24},
        {"au_gt", "ag_gt", 0.6},
        {"sample", "samples", 143.0 / 168},
        {"abc", "bca", 2.0 / 3},
        {"aab", "abb", 0.5},
        {"abc", "xyz", -1.0 / 6},
        {hundred, hundred + "a", 0.25 * 199 * (1.0 / 100 + 1.0 / 101)},
    };
    for (const Case &one : cases) {
        EXPECT_NEAR(columnNameScore(one.a, one.b), one.score, 1e-12) << one.a << ' ' << one.b;
    }
}

TEST(ColumnNameScore, IsTheSameBothWaysAndBelowOneForDifferentNames) {
    const std::vector<std::string> names = {"abc",
                                            "cab",
                                            "aaa",
                                            "zzz",
                                            "depth",
                                            "maxdepth",
                                            "au_gt",
                                            "ag_gt_2",
                                            "dept",
                                            "th",
                                            "az",
                                            "dip",
                                            "plongee",
                                            std::string(64, 'q'),
                                            std::string(65, 'q'),
                                            std::string(150, 'q') + "z"};
    for (const std::string &a : names) {
        for (const std::string &b : names) {
            const double score = columnNameScore(a, b);
            EXPECT_EQ(score, columnNameScore(b, a)) << a << ' ' << b;
            EXPECT_GE(score, -1.0 / 6) << a << ' ' << b;
            EXPECT_EQ(score == 1.0, a == b) << a << ' ' << b << ' ' << score;
            EXPECT_LE(score, 1.0) << a << ' ' << b;
        }
    }
}

TEST(LongestCommonSubstringLength, MeasuresOneUnbrokenRunWhereverItStarts) {
    const std::string filler(200, '-');
    const std::string dots(90, '.');
    struct Case {
        std::string a, b;
        std::int32_t length;
    };
    const std::vector<Case> cases = {
        {"", "", 0},
        {"", "depth", 0},
        {"depth", "maxdepth", 5},
        {"abc", "xyz", 0},
        {"holename", "hole_name", 4},
        {"abcabcd", "xabcdx", 4},
        {"aaaa", "aaaaaaa", 4},
        {std::string(64, 'a'), std::string(64, 'a'), 64},
        {std::string(63, 'a') + "b", std::string(64, 'a'), 63},
        {std::string(70, 'a') + "b", "b" + std::string(70, 'a'), 70},
        {filler + "collar", "collar" + dots, 6},
        {filler + "collar" + filler, dots + "collar" + dots, 6},
        {"\xE9\xFF", "a\xE9\xFF", 2},
    };
    for (const Case &one : cases) {
        EXPECT_EQ(run(one.a, one.b), one.length) << one.a << ' ' << one.b;
        EXPECT_EQ(run(one.b, one.a), one.length) << one.b << ' ' << one.a;
    }
}

} // namespace
} // namespace columnimport
