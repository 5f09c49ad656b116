// SPDX-License-Identifier: MIT

// Wrong calls of each function of the C header, and the results of a run without a dialog.

#include "host/c/columnimport.h"
#include "tests/ScratchFile.h"

#include <memory>

#include <gtest/gtest.h>

using namespace std::string_literals;

namespace {

using Import = columnimport_import;

class CApiCall : public testing::Test {
protected:
    std::unique_ptr<Import, decltype(&columnimport_free)> owner{columnimport_new(),
                                                                columnimport_free};
    Import *import = owner.get();
};

/// The position and origin of each match.
using Matches = std::vector<std::pair<std::int32_t, std::int32_t>>;
const std::pair<std::int32_t, std::int32_t> none(columnimport_none, columnimport_none);
constexpr std::int32_t same = columnimport_origin_same;
constexpr std::int32_t alternative = columnimport_origin_alternative;
constexpr std::int32_t similar = columnimport_origin_similar;
constexpr std::int32_t inOrder = columnimport_origin_in_order;

/// Whether the last call on `import` was reported as wrong.
bool isWrong(Import *import, std::int32_t outcome) {
    return (outcome == columnimport_wrong_use || outcome == columnimport_invalid) &&
           *columnimport_message(import) != '\0';
}
bool isWrong(Import *import, const char *text) {
    return text == nullptr && *columnimport_message(import) != '\0';
}

} // namespace

TEST_F(CApiCall, ReportsBadArgumentsWithAMessage) {
    columnimport_add_column(import, "gold");
    const char *names[] = {"Au", nullptr};
    const std::int64_t lengths[] = {2, -1};
    EXPECT_EQ(columnimport_outcome(import), columnimport_invalid);
    for (Import *i : {import, static_cast<Import *>(nullptr)}) {
        for (const char *text : {static_cast<const char *>(nullptr), "\xE9"}) {
            EXPECT_TRUE(isWrong(i, columnimport_set_title(i, text)));
            EXPECT_TRUE(isWrong(i, columnimport_set_file(i, text)));
            EXPECT_TRUE(isWrong(i, columnimport_add_column(i, text)));
            EXPECT_TRUE(isWrong(i, columnimport_add_alternative(i, 0, text)));
        }
        for (const std::int32_t column : {INT32_MIN, -1, 1, INT32_MAX}) {
            EXPECT_TRUE(isWrong(i, columnimport_add_alternative(i, column, "RL")));
            EXPECT_TRUE(isWrong(i, columnimport_set_required(i, column, 1)));
            EXPECT_TRUE(isWrong(i, columnimport_set_similar(i, column, 0)));
            EXPECT_TRUE(isWrong(i, columnimport_set_saved_match(i, column, "x", 1)));
            EXPECT_TRUE(isWrong(i, columnimport_match_position(i, column)));
            EXPECT_TRUE(isWrong(i, columnimport_match_origin(i, column)));
            EXPECT_EQ(columnimport_match_score(i, column), columnimport_invalid);
            EXPECT_TRUE(isWrong(i, columnimport_match_field(i, column)));
            EXPECT_TRUE(isWrong(i, columnimport_match_name(i, column, nullptr)));
            EXPECT_TRUE(isWrong(i, columnimport_source_column(i, column, nullptr)));
        }
        EXPECT_TRUE(isWrong(i, columnimport_set_size(i, -1, 1)));
        EXPECT_TRUE(isWrong(i, columnimport_set_size(i, 1, 0)));
        EXPECT_TRUE(isWrong(i, columnimport_set_required(i, 0, 2)));
        EXPECT_TRUE(isWrong(i, columnimport_set_similar(i, 0, -1)));
        EXPECT_TRUE(isWrong(i, columnimport_set_saved_match(i, 0, "x", -1)));
        EXPECT_TRUE(isWrong(i, columnimport_set_saved_match(i, 0, nullptr, 1)));
        EXPECT_TRUE(isWrong(i, columnimport_set_first_line_holds_titles(i, -1)));
        EXPECT_TRUE(isWrong(i, columnimport_set_table(i, nullptr, nullptr, 1)));
        EXPECT_TRUE(isWrong(i, columnimport_set_table(i, names, nullptr, -1)));
        EXPECT_TRUE(isWrong(i, columnimport_set_table(i, names, nullptr, 2)));
        EXPECT_TRUE(isWrong(i, columnimport_set_table(i, names, lengths, 2)));
        EXPECT_TRUE(isWrong(i, columnimport_likely_delimiter(i)));
        EXPECT_TRUE(isWrong(i, columnimport_propose(i)));
        EXPECT_TRUE(isWrong(i, columnimport_file_problem(i)));
        EXPECT_TRUE(isWrong(i, columnimport_delimiter(i)));
        EXPECT_TRUE(isWrong(i, columnimport_first_line_holds_titles(i)));
        EXPECT_TRUE(isWrong(i, columnimport_source_column_count(i)));
    }
    EXPECT_EQ(columnimport_outcome(import), columnimport_wrong_use)
        << "of propose without a source";
    EXPECT_EQ(columnimport_column_count(import), 1) << "nothing was changed";
    EXPECT_STREQ(columnimport_message(import), "");
    EXPECT_EQ(columnimport_column_count(nullptr), columnimport_invalid);
    EXPECT_EQ(columnimport_outcome(nullptr), columnimport_invalid);
    EXPECT_EQ(columnimport_set_delimiter(nullptr, ';'), columnimport_wrong_use);
    columnimport_version_numbers(nullptr, nullptr, nullptr);
    columnimport_free(nullptr);
}

TEST_F(CApiCall, ProposesTheMatchesThatTheDialogOpensWith) {
    const ScratchFile file("\xEF\xBB\xBF\"HOLE;1\" ; RL;;Au\0g/t;RL\n"s);
    for (const char *name : {"hole", "collar", "gold", "end"}) {
        columnimport_add_column(import, name);
    }
    columnimport_add_alternative(import, 1, "rl");
    columnimport_add_alternative(import, 2, "Au_gt");
    columnimport_set_file(import, file.path().c_str());
    EXPECT_EQ(columnimport_likely_delimiter(import), ';');
    columnimport_set_delimiter(import, ';');
    const auto propose = [this] {
        EXPECT_EQ(columnimport_propose(import), columnimport_ok) << columnimport_message(import);
        Matches matches;
        for (std::int32_t column = 0; column < 4; ++column) {
            matches.emplace_back(columnimport_match_position(import, column),
                                 columnimport_match_origin(import, column));
        }
        return matches;
    };
    EXPECT_EQ(propose(), (Matches{{0, same}, {2, alternative}, {4, alternative}, none}));
    EXPECT_EQ(columnimport_match_score(import, 0), columnimport_none);
    EXPECT_EQ(columnimport_match_field(import, 2), 3) << "the quotes are around two columns";
    EXPECT_EQ(columnimport_match_field(import, 3), columnimport_none);
    std::int64_t length = 0;
    EXPECT_EQ(std::string(columnimport_match_name(import, 2, &length), 6), "Au\0g/t"s);
    EXPECT_EQ(length, 6);
    EXPECT_STREQ(columnimport_source_column(import, 0, nullptr), "HOLE") << "without a mark";
    EXPECT_EQ(columnimport_source_column_count(import), 6);
    EXPECT_EQ(columnimport_delimiter(import), ';');
    EXPECT_EQ(columnimport_file_problem(import), nullptr);
    EXPECT_STREQ(columnimport_message(import), "") << "of no fault";

    columnimport_set_saved_match(import, 3, "Au\0g/t", 6);
    columnimport_set_saved_match(import, 0, "gone", 4);
    EXPECT_EQ(propose(), (Matches{none, none, none, {4, columnimport_origin_saved}}));
    columnimport_set_first_line_holds_titles(import, 0);
    EXPECT_EQ(propose(), (Matches{{0, inOrder}, {1, inOrder}, {2, inOrder}, {3, inOrder}}));
    EXPECT_STREQ(columnimport_match_name(import, 3, nullptr), "Column4");

    const char *names[] = {"collar", "hole"};
    columnimport_set_table(import, names, nullptr, 2);
    EXPECT_TRUE(isWrong(import, columnimport_likely_delimiter(import)));
    columnimport_set_saved_match(import, 3, nullptr, 0);
    columnimport_set_saved_match(import, 0, nullptr, 0);
    EXPECT_EQ(propose(), (Matches{{1, same}, {0, same}, none, none}));
    const char *resembling[] = {"ends", "holes"};
    columnimport_set_table(import, resembling, nullptr, 2);
    columnimport_set_similar(import, 0, 0);
    EXPECT_EQ(propose(), (Matches{none, none, none, {0, similar}}));
    EXPECT_DOUBLE_EQ(columnimport_match_score(import, 3), 35.0 / 48);
    columnimport_set_similar(import, 0, 1);
    EXPECT_EQ(propose(), (Matches{{1, similar}, none, none, {0, similar}}));
    EXPECT_EQ(columnimport_match_field(import, 0), 1);
    EXPECT_EQ(columnimport_first_line_holds_titles(import), 1);

    columnimport_set_file(import, "/no such file");
    EXPECT_EQ(propose(), Matches(4, none));
    EXPECT_NE(columnimport_file_problem(import), nullptr);
    EXPECT_EQ(columnimport_likely_delimiter(import), columnimport_none);
}
