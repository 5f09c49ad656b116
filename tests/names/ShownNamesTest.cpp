// SPDX-License-Identifier: MIT

#include "names/ShownNames.h"
#include "matching/normalizeColumnName.h"
#include "names/nameText.h"

#include "locales.h"

#include <clocale>
#include <random>
#include <set>

#include <gtest/gtest.h>

using namespace columnimport;
using namespace std::string_literals;

namespace {

/// Names that a file or table may well have, and others that none should have.
std::vector<std::string> awkwardNames() {
    const std::string large(5000, 'x');
    std::vector<std::string> names = {"",
                                      "Not used",
                                      "Plong\xC3\xA9 e",
                                      "Plong\xE9 e",
                                      "hole\0name"s,
                                      "hole\xE2\x90\x80name",
                                      "\x81\x8D\xFF",
                                      "a\xE2\x80\x8B",
                                      "\xED\xA0\x80 is half a character",
                                      "\xF4\x90\x80\x80 is none",
                                      large,
                                      large + "y"};
    names.push_back(std::string(400, 'x') + "\xE2\x80\xA6");
    names.push_back(std::string(398, 'x') + "\xC3\xA9\xC3\xA9 and more");
    std::mt19937 random(4);
    for (int round = 0; round < 5000; ++round) {
        std::string name;
        for (int left = std::uniform_int_distribution<int>(1, 3)(random); left > 0; --left) {
            name += static_cast<char>(std::uniform_int_distribution<int>(0, 255)(random));
        }
        names.push_back(name);
    }
    return names;
}

class Locale : public testing::TestWithParam<const char *> {
protected:
    void SetUp() override { ASSERT_NE(std::setlocale(LC_ALL, GetParam()), nullptr); }
};

} // namespace

TEST_P(Locale, ReturnsTheBytesAndPositionOfEachColumn) {
    const std::vector<std::string> columns = awkwardNames(); // some more than once
    ShownNames names(columns, true);
    std::set<std::wstring> texts = {names.textOf(ShownNames::noColumn).ToStdWstring()};
    for (const wxString &text : names.texts()) {
        texts.insert(text.ToStdWstring());
    }
    EXPECT_EQ(texts.size(), columns.size() + 1);
    std::setlocale(LC_ALL, "C");
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const auto position = static_cast<std::int32_t>(i);
        const wxString text = names.textOf(position);
        ASSERT_EQ(names.bytesOf(text), columns[i]);
        ASSERT_FALSE(text.empty()) << "nothing would be dragged";
        ASSERT_LT(text.length(), 512U) << "more than every list control gives back";
        // Dragged or copied, it travels as UTF-8, and comes back as the column that left.
        const wxString left = names.textForOthers(text, ShownNames::drag);
        const wxString dropped = wxString::FromUTF8(left.utf8_string());
        ASSERT_FALSE(left.empty());
        ASSERT_EQ(names.positionOf(names.textOfForeign(dropped, ShownNames::drag)), position);
    }
}

TEST_P(Locale, EncodesForeignText) {
    ShownNames names({"one\ttwo"}, true);
    const auto paste = [&names](const wxString &text) {
        return names.textOfForeign(text, ShownNames::clipboard);
    };
    const wxString text = wxString::FromUTF8("plong\xC3\xA9 \xC3\x83\xC2\xA9");
    EXPECT_EQ(paste(text), text) << "shown as given";
    EXPECT_EQ(names.bytesOf(text),
              isLatin1(GetParam()) ? "plong\xE9 \xC3\xA9" : "plong\xC3\xA9 \xC3\x83\xC2\xA9");
    EXPECT_EQ(names.positionOf(text), ShownNames::noColumn);
    EXPECT_EQ(names.bytesOf(paste(wxString::FromUTF8("\xCE\xA9"))), "\xCE\xA9");
    EXPECT_EQ(names.bytesOf(paste("a\nb")), "a\nb");
    EXPECT_EQ(paste("a\nb"), paste("a\nb")) << "the same each time";
    EXPECT_EQ(names.positionOf(paste("one\ttwo")), 0) << "found by its bytes";
    EXPECT_EQ(names.bytesOf("never seen"), "never seen");
    const std::string page(1 << 20, 'x');
    EXPECT_EQ(names.bytesOf(paste(page)), page);
}

TEST_P(Locale, LeavesNormalisedNamesAsTheyAre) {
    EXPECT_EQ(normalizeColumnName("BHID, DIP \xDD\xE9"), "bhid__dip___");
}

INSTANTIATE_TEST_SUITE_P(InEach, Locale, testing::ValuesIn(locales));

TEST(ShownNames, DistinguishManyColumnsThatLookTheSame) {
    const std::string head(1000, 'x');
    std::vector<std::string> columns;
    columns.reserve(20000);
    for (int name = 0; name < 20000; ++name) {
        columns.push_back(head + std::to_string(name));
    }
    const ShownNames names(columns, true);
    EXPECT_EQ(names.bytesOf(names.textOf(19999)), head + "19999");
}

TEST(ShownNames, LeaveForOtherProgramsWithoutInvisibleCharacters) {
    ShownNames names({"AU", "AU", ""}, true);
    for (const std::int32_t position : {0, 1}) {
        EXPECT_EQ(names.textForOthers(names.textOf(position), ShownNames::clipboard), "AU");
    }
    EXPECT_EQ(names.positionOf(names.textOfForeign("AU", ShownNames::clipboard)), 1)
        << "copied last";
    names.textForOthers(names.textOf(0), ShownNames::drag);
    EXPECT_EQ(names.positionOf(names.textOfForeign("AU", ShownNames::clipboard)), 1)
        << "a drag in between changes nothing";
    EXPECT_EQ(names.positionOf(names.textOfForeign("AU", ShownNames::drag)), 0);
    EXPECT_EQ(names.textForOthers(names.textOf(2), ShownNames::clipboard), " ");
    EXPECT_EQ(names.positionOf(names.textOfForeign("AU", ShownNames::clipboard)), 0);
}

TEST(ShownNames, CountColumnsWithoutTitles) {
    ShownNames names({"same", "same"}, false);
    EXPECT_EQ(names.textOf(0), "Column1");
    EXPECT_EQ(names.bytesOf("Column2"), "Column2");
    EXPECT_EQ(names.positionOf(names.textOfForeign("same", ShownNames::clipboard)),
              ShownNames::noColumn);
}
