#include "matching/normalizeColumnName.h"

#include <gtest/gtest.h>

using namespace columnimport;

TEST(NormalizeColumnName, BringsEverySpellingOfANameToOneForm) {
    const struct {
        std::string written, normalised;
    } cases[] = {
        {"/09:@AZ[`az{", "_09__az__az_"},
        {"cu_ %%", "cu__pct_pct"},
        {"%CU_%", "_pctcu_pct"},
        {"AU (G/T)", "au__gt_"},
        {"g%/t", "g_pct_t"},
        {std::string("a\0\xC3\xA9", 4), "a___"},
    };
    for (const auto &[written, normalised] : cases) {
        EXPECT_EQ(normalizeColumnName(written), normalised) << '"' << written << '"';
    }
}

TEST(ReplaceAll, GoesFromLeftToRightAndPassesOverWhatItPutIn) {
    EXPECT_EQ(replaceAll("aaaaa", "aa", "a"), "aaa");
    EXPECT_EQ(replaceAll("aba", "a", "aa"), "aabaa");
}
