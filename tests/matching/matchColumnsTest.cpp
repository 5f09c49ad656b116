#include "matching/matchColumns.h"

#include <gtest/gtest.h>

#include <cmath>

#include "matching/columnNameScore.h"

namespace columnimport {
namespace {

using Names = std::vector<std::string>;
using Proposal = std::vector<std::int32_t>;

TEST(MatchColumns, ProposesByEqualityBySynonymAndByLikeness) {
    EXPECT_EQ(matchColumns({"holename", "x", "dip"}, {"BHID", "UTM X", "Au g/t"}),
              (Proposal{0, 1, -1}));
    EXPECT_EQ(matchColumns({"AU_GT", "Cu %"}, {"cu_pct", "au (g/t)"}), (Proposal{1, 0}));
    EXPECT_EQ(matchColumns({"az", "to"}, {"todepth", "azimuth"}), (Proposal{1, 0}));
    EXPECT_EQ(matchColumns({"sample"}, {"samples"}), (Proposal{0}));
}

TEST(MatchColumns, AListWithoutNamesGivesNoMatch) {
    EXPECT_EQ(matchColumns({}, {}), Proposal{});
    EXPECT_EQ(matchColumns({}, {"x"}), Proposal{});
    EXPECT_EQ(matchColumns({"x", "y"}, {}), (Proposal{-1, -1}));
}

TEST(MatchColumns, EmptyNamesFitEachOtherOnly) {
    EXPECT_EQ(matchColumns({"x", ""}, {"", "y"}), (Proposal{-1, 0}));
}

TEST(MatchColumns, FirstOfEqualVotesKeepsTheColumn) {
    EXPECT_EQ(matchColumns({"holename"}, {"bhid", "holeid"}), Proposal{0});
    EXPECT_EQ(matchColumns({"depth"}, {"Depth", "DEPTH"}), Proposal{0});
    EXPECT_EQ(matchColumns({"sample"}, {"samples", "sample2"}), Proposal{0});
}

TEST(MatchColumns, AVoteGoesToTheFirstOfEqualColumns) {
    EXPECT_EQ(matchColumns({"holename", "x", "easting"}, {"bhid", "holeid", "coordx"}),
              (Proposal{0, 2, -1}));
    EXPECT_EQ(matchColumns({"easting", "x"}, {"coordx"}), (Proposal{0, -1}));
    EXPECT_EQ(matchColumns({"x", "easting"}, {"coordx"}), (Proposal{0, -1}));
    EXPECT_EQ(matchColumns({"Depth", "depth"}, {"depth", "depth"}), (Proposal{0, -1}));
    EXPECT_EQ(matchColumns({"sample2", "samples"}, {"sample"}), (Proposal{0, -1}));
    // Names of different lengths, both with a score of 0.5.
    EXPECT_EQ(matchColumns({"abcxyd", "abd"}, {"abcdef"}), (Proposal{0, -1}));
    EXPECT_EQ(matchColumns({"abd", "abcxyd"}, {"abcdef"}), (Proposal{0, -1}));
}

TEST(MatchColumns, TheStrongerVoteWinsWhereverItStands) {
    const Names app = {"sample_number", "sample_no"};
    const std::string strong = "sample_numbers";
    const std::string weak = "sample_numb";
    // Both put the first column first, and each would fit the second one well enough.
    for (const std::string &name : {strong, weak}) {
        ASSERT_GT(columnNameScore(app[0], name), columnNameScore(app[1], name));
        ASSERT_GT(columnNameScore(app[1], name), 0.4);
    }
    EXPECT_EQ(matchColumns(app, {weak, strong}), (Proposal{1, -1}));
    EXPECT_EQ(matchColumns(app, {strong, weak}), (Proposal{0, -1}));
}

TEST(MatchColumns, AScoreOfExactlyTheThresholdIsRefusedAndTheNextDoubleTaken) {
    struct Case {
        std::string app, file;
        double score;
        std::int32_t match;
    };
    const std::vector<Case> cases = {
        {"abcde", "abdxy", 0.4, -1},
        {"abcde", "acebx", 0.4, -1},
        // 33 shared bytes and a run of 32 make 0.4 too, but for the rounding.
        {std::string(32, 'a') + "b" + std::string(27, 'c'),
         std::string(32, 'a') + "d" + std::string(86, 'd') + "b", std::nextafter(0.4, 1.0), 0},
    };
    for (const Case &one : cases) {
        EXPECT_EQ(columnNameScore(one.app, one.file), one.score) << one.app;
        EXPECT_EQ(matchColumns({one.app}, {one.file}), Proposal{one.match}) << one.file;
    }
}

TEST(MatchColumns, AColumnMayLoseItsOnlyVoteToABetterOneAndIsThenLeftOut) {
    // A file column that fits two columns is spent on the one that it fits better, even when
    // another file column takes that one.
    EXPECT_EQ(matchColumns({"dip", "dips"}, {"dip", "dip"}), (Proposal{0, -1}));
    EXPECT_EQ(matchColumns({"sample", "sampled"}, {"samples", "sample"}), (Proposal{1, -1}));
}

TEST(MatchColumns, NamesOfAnyLengthAreMatched) {
    std::string giant;
    for (int number = 0; giant.size() < 20000; ++number) {
        giant += "sample" + std::to_string(number);
    }
    std::string altered = giant;
    altered[giant.size() / 3] = '_';
    const std::string backwards(giant.rbegin(), giant.rend());
    EXPECT_EQ(matchColumns({"depth", giant}, {backwards, altered, "dept"}), (Proposal{2, 1}));
    EXPECT_EQ(matchColumns({giant, "sample7"}, {"sample7_", altered}), (Proposal{1, 0}));
    // A short name inside of a giant one covers all of itself and next to nothing of the other.
    EXPECT_EQ(matchColumns({"sample77"}, {giant}), Proposal{0});
    EXPECT_EQ(matchColumns({giant}, {"x", "sample77"}), Proposal{1});
    EXPECT_EQ(matchColumns({"mpl77sae"}, {giant}), Proposal{-1});
}

} // namespace
} // namespace columnimport
