// SPDX-License-Identifier: MIT

#include "names/isUtf8.h"

#include <string>

#include <gtest/gtest.h>

using namespace std::string_literals;

TEST(IsUtf8, AcceptsOnlyTheRangeOfEachLength) {
    EXPECT_TRUE(columnimport::isUtf8("a\0\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80"
                                     "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"s));
    for (const char *bytes :
         {"\x80", "\xC2", "\xC2\x61", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xED\xBF\xBF",
          "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80"}) {
        EXPECT_FALSE(columnimport::isUtf8(bytes));
    }
}
