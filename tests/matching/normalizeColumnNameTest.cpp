#include "matching/normalizeColumnName.h"

#include <gtest/gtest.h>

using namespace columnimport;

TEST(NormalizeColumnName, BringsEverySpellingOfANameToOneForm) {
    const struct {
        std::string written, normalised;
    } cases[] = {
        {"Hole-ID ", "hole_id_"},  {"/09:@AZ[`az{", "_09__az__az_"},
        {"CU_%", "cu_pct"},        {"cu\t%", "cu__pct"},
        {"cu_ %%", "cu__pct_pct"}, {"%cu_pct", "_pctcu_pct"},
        {"AU (G/T)", "au__gt_"},   {"g%/t", "g_pct_t"},
        {"g/g/tt", "g_gtt"},       {std::string("a\0\xC3\xA9\xFF", 5), "a____"},
    };
    for (const auto &[written, normalised] : cases) {
        EXPECT_EQ(normalizeColumnName(written), normalised) << '"' << written << '"';
    }
}

TEST(NormalizeColumnName, TakesTimeInStepWithTheLengthHoweverManyUnitsThereAre) {
    // Moving the tail of four million bytes once for each percent sign would take hours.
    const std::size_t count = std::size_t{1} << 22U;
    EXPECT_EQ(normalizeColumnName(std::string(count, '%')).size(), 4 * count);
}

TEST(ReplaceAll, GoesFromLeftToRightAndPassesOverWhatItPutIn) {
    EXPECT_EQ(replaceAll("aaaaa", "aa", "a"), "aaa");
    EXPECT_EQ(replaceAll("aba", "a", "aa"), "aabaa");
    EXPECT_EQ(replaceAll("xyx", "x", ""), "y");
}
