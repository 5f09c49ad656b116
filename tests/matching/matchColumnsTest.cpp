#include "matching/matchColumns.h"

#include <gtest/gtest.h>

#include <cmath>

#include "matching/columnNameScore.h"

using namespace columnimport;
using Names = std::vector<std::string>;
using Proposal = std::vector<std::int32_t>;

namespace {

struct Case {
    Names app, file;
    Proposal proposal;
};

void expectProposals(const std::vector<Case> &cases) {
    for (const Case &one : cases) {
        SCOPED_TRACE(testing::PrintToString(one.app) + testing::PrintToString(one.file));
        EXPECT_EQ(matchColumns(one.app, one.file), one.proposal);
    }
}

} // namespace

TEST(MatchColumns, ProposesTheFirstOfTheBestFits) {
    expectProposals({
        {{"holename", "x", "dip"}, {"BHID", "UTM X", "Au g/t"}, {0, 1, -1}},
        {{"AU_GT", "Cu %"}, {"cu_pct", "au (g/t)"}, {1, 0}},
        {{"az", "to"}, {"todepth", "azimuth"}, {1, 0}},
        {{}, {"x"}, {}},
        {{"x", "y"}, {}, {-1, -1}},
        {{"x", ""}, {"", "y"}, {-1, 0}},
        // Equal votes for one column.
        {{"holename"}, {"bhid", "holeid"}, {0}},
        {{"sample"}, {"samples", "sample2"}, {0}},
        // A vote that two columns are equally good for, in the last case with 0.5 at two lengths.
        {{"easting", "x"}, {"coordx"}, {0, -1}},
        {{"Depth", "depth"}, {"DEPTH", "depth"}, {0, -1}},
        {{"abcxyd", "abd"}, {"abcdef"}, {0, -1}},
        {{"abd", "abcxyd"}, {"abcdef"}, {0, -1}},
        // The stronger vote wins, and the weaker one is lost to the column that it fits less.
        {{"sample_number", "sample_no"}, {"sample_numb", "sample_numbers"}, {1, -1}},
        {{"sample_number", "sample_no"}, {"sample_numbers", "sample_numb"}, {0, -1}},
    });
}

TEST(MatchColumns, AScoreOfExactlyTheThresholdIsRefusedAndTheNextDoubleTaken) {
    // 33 shared bytes and a run of 32 make 0.4 too, but for the rounding.
    const std::string app = std::string(32, 'a') + "b" + std::string(27, 'c');
    const std::string file = std::string(32, 'a') + std::string(87, 'd') + "b";
    EXPECT_EQ(columnNameScore("abcde", "abdxy"), 0.4);
    EXPECT_EQ(columnNameScore(app, file), std::nextafter(0.4, 1.0));
    expectProposals({{{"abcde"}, {"abdxy"}, {-1}}, {{app}, {file}, {0}}});
}

TEST(MatchColumns, NamesOfAnyLengthAreMatched) {
    std::string giant;
    for (int number = 0; giant.size() < 20000; ++number) {
        giant += "sample" + std::to_string(number);
    }
    std::string altered = giant;
    altered[giant.size() / 3] = '_';
    const std::string backwards(giant.rbegin(), giant.rend());
    expectProposals({
        {{"depth", giant}, {backwards, altered, "dept"}, {2, 1}},
        // A short name inside of a giant one covers all of itself and next to nothing of the other.
        {{"sample77"}, {giant}, {0}},
        {{giant}, {"x", "sample77"}, {1}},
        {{"mpl77sae"}, {giant}, {-1}},
    });
}
