// SPDX-License-Identifier: MIT

#include "names/nameText.h"

#include <clocale>

#include <gtest/gtest.h>

using namespace columnimport;
using namespace std::string_literals;

TEST(ShownText, IsUtf8ElseTheLocalesElseLatin1) {
    const struct {
        std::string bytes;
        std::wstring inUtf8, inLatin1;
    } cases[] = {
        {"plong\xC3\xA9\x65", L"plong\xE9\x65", L""},
        {"plong\xE9\x65", L"plong\xE9\x65", L""},
        // In the second locale the byte is a euro sign; in none it is the sign of a currency.
        {"\xA4", L"\xA4", L"\x20AC"},
        {"a\0b\x1B\x7F\n"s, L"a\xFFFD\x62\xFFFD\xFFFD\xB6", L""},
        {"\x85\t\r", L"\xFFFD\x2192\xB6", L""},
        {"\xEF\xBB\xBFHOLE", L"\xFFFDHOLE", L""},
        {std::string(401, 'x'), std::wstring(400, 'x') + L'\x2026', L""},
        // Cut inside a character of two bytes, and inside one of three.
        {std::string(399, 'x') + "\xC3\xA9", std::wstring(399, 'x') + L'\x2026', L""},
        {std::string(398, 'x') + "\xE2\x82\xAC", std::wstring(398, 'x') + L'\x2026', L""},
    };
    for (const auto &[bytes, inUtf8, inLatin1] : cases) {
        ASSERT_NE(std::setlocale(LC_ALL, "C.UTF-8"), nullptr);
        EXPECT_EQ(shownText(bytes).ToStdWstring(), inUtf8);
        ASSERT_NE(std::setlocale(LC_ALL, "fr_FR@euro"), nullptr);
        EXPECT_EQ(shownText(bytes).ToStdWstring(), inLatin1.empty() ? inUtf8 : inLatin1);
    }
}

TEST(PreviewText, ReadsEachLineByItselfAndKeepsTabs) {
    std::setlocale(LC_ALL, "C.UTF-8");
    EXPECT_EQ(previewText("plong\xC3\xA9\x65\nplong\xE9\x65\n\na\tb\0"s).ToStdWstring(),
              L"plong\xE9\x65\nplong\xE9\x65\n\na\tb\xFFFD");
    EXPECT_EQ(previewText(std::string(5000, 'x') + "\nnext\n").AfterFirst('\n'), "next\n");
    EXPECT_LT(previewText(std::string(5000, 'x') + "\n").length(), 500U);
}
