// SPDX-License-Identifier: MIT

// The rules, by examples that decide doubtful cases.

#include <gtest/gtest.h>

#include <cmath>

#include "matching/columnNameScore.h"
#include "matching/matchColumns.h"
#include "matching/normalizeColumnName.h"
#include "matching/openingMatches.h"

using namespace columnimport;

TEST(NormalizeColumnName, MakesAllSpellingsOfANameEqual) {
    const struct {
        std::string written, normalised;
    } cases[] = {
        {"/09:@AZ[`az{", "_09__az__az_"},
        {"cu_ %%", "cu__pct_pct"},
        {"%CU_%", "_pctcu_pct"},
        {"AU (G/T)", "au__gt_"},
        {std::string("a\0\xC3\xA9", 4), "a___"},
    };
    for (const auto &[written, normalised] : cases) {
        EXPECT_EQ(normalizeColumnName(written), normalised) << '"' << written << '"';
    }
}

TEST(ColumnNameScore, RanksEqualNamesAboveSynonymsAndThoseAboveTheMeasure) {
    const struct {
        std::string a, b;
        double score;
    } cases[] = {
        {"", "", 1.0},
        {"az", "azimuth", 0.99},
        {"xcollar", "xc", 0.0},
        {"hole_id", "holename", 15.0 / 32},
        {"abc", "xyz", -1.0 / 6},
    };
    for (const auto &[a, b, score] : cases) {
        EXPECT_NEAR(columnNameScore(a, b), score, 1e-12) << a << ' ' << b;
    }
}

TEST(LongestCommonSubstringLength, MeasuresOneUnbrokenRunWithinTheGivenLengths) {
    EXPECT_EQ(longestCommonSubstringLength("xyzwabcd", "abcdxyzw", 7, 7), 3);
}

TEST(MatchColumns, ProposesTheFirstOfTheBestFits) {
    const struct {
        std::vector<std::string> app, file;
        std::vector<std::int32_t> proposal;
    } cases[] = {
        {{"holename", "x", "dip"}, {"BHID", "UTM X", "Au g/t"}, {0, 1, -1}},
        {{"x", "y"}, {}, {-1, -1}},
        // Equal votes for one column.
        {{"sample"}, {"samples", "sample2"}, {0}},
        // A vote that two columns deserve equally, in the last case with 0.5 at two lengths.
        {{"easting", "x"}, {"coordx"}, {0, -1}},
        {{"abd", "abcxyd"}, {"abcdef"}, {0, -1}},
        // The stronger vote wins, and the weaker one does not go to the next best column.
        {{"sample_number", "sample_no"}, {"sample_numb", "sample_numbers"}, {1, -1}},
    };
    for (const auto &[app, file, proposal] : cases) {
        EXPECT_EQ(matchColumns(app, file), proposal) << testing::PrintToString(file);
    }
}

namespace columnimport {
bool operator==(const ColumnMatch &a, const ColumnMatch &b) {
    return a.position == b.position && a.origin == b.origin && std::abs(a.score - b.score) < 1e-12;
}
void PrintTo(const ColumnMatch &match, std::ostream *out) {
    *out << match.position << " by origin " << static_cast<int>(match.origin) << " with "
         << match.score;
}
} // namespace columnimport

TEST(OpeningMatches, HaveTheOriginOfEachMatch) {
    using Names = std::vector<std::string>;
    using Origin = MatchOrigin;
    const Names app = {"Cu %", "holename", "to", "Zn %"};
    const Alternatives alternatives = {{"copper"}, {"bhid"}, {"SAMPTO", "To (m)"}};
    const struct {
        Names titles;
        std::vector<ColumnMatch> expected;
        std::vector<bool> refusesSimilar = {};
        Names saved = {};
        bool holdsTitles = true;
    } cases[] = {
        {{"zn_ppm", "TO (M)", "BHID", "CU_PCT"},
         {{3, Origin::same},
          {2, Origin::synonym},
          {1, Origin::alternative},
          {0, Origin::similar, 7.0 / 12}}},
        // A refused guess goes to no other column, and other guesses stay.
        {{"ni_pct", "holes"},
         {{}, {1, Origin::similar, 0.56875}, {}, {}},
         {false, false, false, true}},
        {{"ni_pct", "holes"}, {{}, {}, {}, {0, Origin::similar, 2.0 / 3}}, {false, true}},
        {{"Copper", "bhid", "zn_pct"},
         {{0, Origin::alternative}, {1, Origin::synonym}, {}, {2, Origin::same}},
         {true, true, true, true}},
        {{"", "b", "b"},
         {{1, Origin::saved}, {}, {}, {1, Origin::saved}},
         {true},
         {"b", "", "gone", "b"}},
        {{"", "b"},
         {{0, Origin::inOrder}, {1, Origin::inOrder}, {}, {}},
         {true},
         {"b", "", "gone", "b"},
         false},
    };
    for (const auto &[titles, expected, refusesSimilar, savedNames, holdsTitles] : cases) {
        Names saved = savedNames;
        EXPECT_EQ(openingMatches(app, alternatives, refusesSimilar, titles, holdsTitles,
                                 saved.empty() ? nullptr : &saved),
                  expected)
            << testing::PrintToString(titles);
    }
}

TEST(MatchColumns, RefusesAScoreOfExactlyTheThresholdAndTakesTheNextDouble) {
    // 33 shared bytes and a run of 32 make 0.4 too, but for the rounding.
    const std::string app = std::string(32, 'a') + "b" + std::string(27, 'c');
    const std::string file = std::string(32, 'a') + std::string(87, 'd') + "b";
    EXPECT_EQ(columnNameScore("abcde", "abdxy"), 0.4);
    EXPECT_EQ(columnNameScore(app, file), std::nextafter(0.4, 1.0));
    EXPECT_EQ(matchColumns({"abcde", app}, {"abdxy", file}), (std::vector<std::int32_t>{-1, 1}));
}

TEST(MatchColumns, UsesTheAlternativesOfTheHost) {
    EXPECT_EQ(matchColumns({"a", "rl"}, {"RL"}, {{"RL"}}), (std::vector<std::int32_t>{-1, 0}));
    // Only a very long name can measure more.
    const std::string name(120, 'x');
    EXPECT_EQ(matchColumns({"a", name + "y"}, {name}, {{name}}),
              (std::vector<std::int32_t>{-1, 0}));
    EXPECT_EQ(matchColumns({"a", "xxxy"}, {"xxx"}, {{"xxx"}}), (std::vector<std::int32_t>{0, -1}));
}
