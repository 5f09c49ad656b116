// SPDX-License-Identifier: MIT

#include "names/NameBook.h"
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

/// Names that a file or a table may well have, and others that none should have.
std::vector<std::string> awkwardNames() {
    std::vector<std::string> names = {"",
                                      "Not used",
                                      "Plong\xC3\xA9 e",
                                      "Plong\xE9 e",
                                      "hole\0name"s,
                                      "hole\xE2\x90\x80name",
                                      "\xED\xA0\x80 is half a character",
                                      "\xF4\x90\x80\x80 is none",
                                      "\x81\x8D\xFF",
                                      "a\xE2\x80\x8B",
                                      std::string(400, 'x') + "\xE2\x80\xA6",
                                      std::string(5000, 'x'),
                                      std::string(5000, 'x') + "y",
                                      std::string(398, 'x') + "\xC3\xA9\xC3\xA9 and more"};
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

TEST_P(Locale, GivesTheBytesAndThePositionOfEachColumnBack) {
    NameBook book;
    const std::vector<std::string> names = awkwardNames(); // some more than once
    std::set<std::wstring> texts = {book.textOf(NameBook::noColumn).ToStdWstring()};
    for (const std::string &name : names) {
        texts.insert(book.addColumn(name).ToStdWstring());
    }
    EXPECT_EQ(texts.size(), names.size() + 1);
    std::setlocale(LC_ALL, "C");
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto position = static_cast<std::int32_t>(i);
        const wxString text = book.textOf(position);
        ASSERT_EQ(book.bytesOf(text), names[i]);
        ASSERT_FALSE(text.empty()) << "nothing would be dragged";
        ASSERT_LT(text.length(), 512U) << "more than every list control gives back";
        // Dragged, it travels as UTF-8, and a column of the dialog is meant by it.
        const wxString dropped = wxString::FromUTF8(text.utf8_string());
        ASSERT_EQ(book.positionOf(book.textOfForeign(dropped)), position);
    }
}

TEST_P(Locale, GivesForeignTextItsBytes) {
    NameBook book;
    const wxString accent =
        book.textOfForeign(wxString::FromUTF8("plong\xC3\xA9 \xC3\x83\xC2\xA9"));
    EXPECT_EQ(accent, wxString::FromUTF8("plong\xC3\xA9 \xC3\x83\xC2\xA9")) << "shown as given";
    EXPECT_EQ(book.bytesOf(accent),
              isLatin1(GetParam()) ? "plong\xE9 \xC3\xA9" : "plong\xC3\xA9 \xC3\x83\xC2\xA9");
    EXPECT_EQ(book.bytesOf(book.textOfForeign(wxString::FromUTF8("\xCE\xA9"))), "\xCE\xA9");
    EXPECT_EQ(book.bytesOf(book.textOfForeign("a\nb")), "a\nb");
    EXPECT_EQ(book.bytesOf("never seen"), "never seen");
    EXPECT_EQ(book.positionOf(accent), NameBook::noColumn);
    const std::string page(1 << 20, 'x');
    EXPECT_EQ(book.bytesOf(book.textOfForeign(page)), page);
}

TEST_P(Locale, LeavesNormalisedNamesAsTheyAre) {
    EXPECT_EQ(normalizeColumnName("BHID, DIP \xDD\xE9"), "bhid__dip___");
}

INSTANTIATE_TEST_SUITE_P(InEach, Locale, testing::ValuesIn(locales));

TEST(NameBook, TellsManyNamesApartThatReadTheSame) {
    NameBook book;
    const std::string head(1000, 'x');
    for (int name = 0; name < 20000; ++name) {
        book.addColumn(head + std::to_string(name));
    }
    EXPECT_EQ(book.bytesOf(book.textOf(19999)), head + "19999");
}
