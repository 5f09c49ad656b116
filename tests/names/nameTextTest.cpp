#include "dialogs/NameText.h"
#include "dialogs/LongNames.h"

#include <clocale>
#include <random>

#include <gtest/gtest.h>

using namespace columnimport;

namespace {

class NameText : public testing::TestWithParam<const char *> {
protected:
    NameText() { isSet = std::setlocale(LC_ALL, GetParam()) != nullptr; }
    void SetUp() override { ASSERT_TRUE(isSet) << "there is no locale " << GetParam(); }

    bool isSet;
};

} // namespace

TEST_P(NameText, AndBytesInvertEachOtherOnAnyBytesWithoutAZero) {
    const std::string long2 = std::string(999, 'x') + "\xC3\xA9 and more";
    std::vector<std::string> names = {"",
                                      "Teneur",
                                      "Plong\xC3\xA9 e",
                                      "plong\xE9\x65",
                                      "\xF4\x80\x83\xA9 is a private character",
                                      "\xC3\xA9\xE9 both",
                                      "\xE2\x80\xA6\xEE\x83\xB0",
                                      long2,
                                      std::string(100000, '\xE9')};
    std::mt19937 random(4);
    std::uniform_int_distribution<int> length(1, 12);
    std::uniform_int_distribution<int> byte(1, 255);
    for (int round = 0; round < 20000; ++round) {
        std::string name;
        for (int left = length(random); left > 0; --left) {
            name += static_cast<char>(byte(random));
        }
        names.push_back(name);
    }
    for (const std::string &name : names) {
        const wxString text = toText(name);
        ASSERT_EQ(toBytes(text), name);
        ASSERT_EQ(text.empty(), name.empty());
        // On its way through a drag the text is UTF-8.
        ASSERT_EQ(toBytes(wxString::FromUTF8(text.utf8_string())), name);
    }
}

TEST_P(NameText, OfAFileIsLegibleInThePreview) {
    EXPECT_EQ(toPreviewText("plong\xC3\xA9\x65\nplong\xE9\x65\n\n").AfterFirst('\n'),
              wxString::FromUTF8("plong\xC3\xA9\x65\n\n"));
    const wxString cut = toPreviewText(std::string(5000, 'x') + "\nnext\n");
    EXPECT_LT(cut.size(), 1100U);
    EXPECT_EQ(cut.AfterFirst('\n'), "next\n");
}

INSTANTIATE_TEST_SUITE_P(Locales, NameText, testing::Values("C", "C.UTF-8", "fr_FR"));

TEST(LongNames, ShowTheirHeadAndAreForgottenWithTheDialog) {
    const std::string name(5000, 'x');
    const wxString text = toText(name);
    EXPECT_LT(text.size(), 1100U);
    EXPECT_NE(toText(name + "y"), text);
    EXPECT_EQ(toText(name), text);
    LongNames::forgetAll();
    EXPECT_NE(toBytes(text), name);
}
