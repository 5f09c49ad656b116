#include "matching/normalizeColumnName.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace columnimport {
namespace {

TEST(NormalizeColumnName, BringsEverySpellingOfANameToOneForm) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"", ""},
        {"Hole-ID", "hole_id"},
        {"CORE 09", "core_09"},
        {"UTM X", "utm_x"},
        {"From (m)", "from__m_"},
        {"x ", "x_"},
        {"---", "___"},
        {"Zn%", "zn_pct"},
        {"Cu %", "cu_pct"},
        {"CU_%", "cu_pct"},
        {"cu_pct", "cu_pct"},
        {"cu  %", "cu__pct"},
        {"cu-%", "cu__pct"},
        {"cu\t%", "cu__pct"},
        {"cu_ %", "cu__pct"},
        {"cu %%", "cu_pct_pct"},
        {"%", "_pct"},
        {"%_%", "_pct_pct"},
        {"%cu", "_pctcu"},
        {"Au g/t", "au_gt"},
        {"AU (G/T)", "au__gt_"},
        {"avg/ton", "avgton"},
        {"g/t %", "gt_pct"},
        {"g%/t", "g_pct_t"},
        {"g/g/tt", "g_gtt"},
        {"Qualit\xE9", "qualit_"},
        {"Qualit\xC3\xA9", "qualit__"},
        {std::string("a\0b\xFF#", 5), "a_b__"},
    };
    for (const auto &[written, normalised] : cases) {
        EXPECT_EQ(normalizeColumnName(written), normalised) << '"' << written << '"';
    }
}

TEST(NormalizeColumnName, EveryNameOfThreeBytesIsLowerCaseStaysNotEmptyAndIsNormalisedOnce) {
    const std::string bytes("aGz0g/tT% _#@[`{:\x7F\x80\xFF\0", 21);
    for (const char first : bytes) {
        for (const char second : bytes) {
            for (const char third : bytes) {
                const std::string written = {first, second, third};
                const std::string name = normalizeColumnName(written);
                EXPECT_FALSE(name.empty()) << written;
                EXPECT_EQ(name.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789_"),
                          std::string::npos)
                    << written;
                EXPECT_EQ(normalizeColumnName(name), name) << written;
            }
        }
    }
}

TEST(NormalizeColumnName, TakesTimeInStepWithTheLengthHoweverManyUnitsThereAre) {
    // Moving the tail of four million bytes once for each percent sign would take hours.
    const std::size_t count = std::size_t{1} << 22U;
    const std::string name = normalizeColumnName(std::string(count, '%'));
    EXPECT_EQ(name.size(), 4 * count);
    EXPECT_EQ(static_cast<std::size_t>(std::count(name.begin(), name.end(), 'p')), count);
}

TEST(ReplaceAll, GoesFromLeftToRightAndPassesOverWhatItPutIn) {
    struct Case {
        std::string text, search, replacement, result;
    };
    const std::vector<Case> cases = {
        {"", "%", "_pct", ""},       {"g", "g/t", "gt", "g"},     {"%_%", "_%", "_pct", "%_pct"},
        {"aaaaa", "aa", "a", "aaa"}, {"aba", "a", "aa", "aabaa"}, {"xyx", "x", "", "y"},
    };
    for (const Case &one : cases) {
        EXPECT_EQ(replaceAll(one.text, one.search, one.replacement), one.result) << one.text;
    }
}

} // namespace
} // namespace columnimport
