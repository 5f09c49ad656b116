// SPDX-License-Identifier: MIT

// Features that only the C header has: positions, required columns, a file without its byte-order
// mark.

#include "person/DialogRun.h"
#include "tests/ScratchFile.h"

#include <filesystem>
#include <memory>

#include <columnimport.h>
#include <gtest/gtest.h>
#include <wx/clipbrd.h>

namespace {

class CApi : public testing::Test {
protected:
    CApi() : file("\xEF\xBB\xBF\"BH,HOLE\",Au,Au,\n") {
        columnimport_set_file(import.get(), file.path().c_str());
        for (const char *name : {"hole", "gold"}) {
            columnimport_add_column(import.get(), name);
        }
    }

    static std::string clipboardText() {
        const wxClipboardLocker clipboard;
        wxTextDataObject text;
        wxTheClipboard->GetData(text);
        return text.GetText().utf8_string();
    }

    std::int32_t show(const Steps &steps) {
        std::int32_t outcome = columnimport_invalid;
        runWithPerson(steps, [this, &outcome] {
            outcome = columnimport_show(import.get(), nullptr);
            return true;
        });
        return outcome;
    }

    ScratchFile file;
    std::unique_ptr<columnimport_import, decltype(&columnimport_free)> import{columnimport_new(),
                                                                              columnimport_free};
};

} // namespace

TEST_F(CApi, ReportsWhichOfTheEqualTitlesWasPasted) {
    EXPECT_EQ(columnimport_show(nullptr, nullptr), columnimport_wrong_use);
    EXPECT_EQ(show([this](Person &person) {
                  EXPECT_EQ(read([this] { return columnimport_show(import.get(), nullptr); }),
                            columnimport_already_open);
                  EXPECT_EQ(read([this] { return columnimport_propose(import.get()); }),
                            columnimport_wrong_use);
                  person.click(Person::fileRow(3));
                  person.strikeWith(WXK_CONTROL, 'c');
                  person.click(Person::matchRow(1));
                  person.strikeWith(WXK_CONTROL, 'v');
                  poll("it is pasted", [] { return matchTexts()[1] == fileTexts()[3]; });
                  EXPECT_EQ(read(clipboardText), "Au") << "as other programs get it";
                  person.drag(Person::fileRow(4), Person::matchRow(0));
                  std::filesystem::remove(std::filesystem::u8path(file.path()));
                  person.typeDelimiter(';');
                  poll("the file is gone", [] { return !sentence().empty(); });
                  person.strikeWith(WXK_CONTROL, 'z');
                  poll("all is as before", [] { return sentence().empty(); });
                  pressCancel(person);
              }),
              columnimport_cancelled);
    EXPECT_EQ(columnimport_file_problem(import.get()), nullptr);
    EXPECT_EQ(columnimport_match_position(import.get(), 0), 4) << "the one with an empty title";
    EXPECT_EQ(columnimport_match_position(import.get(), 1), 3);
    EXPECT_EQ(columnimport_match_field(import.get(), 1), 2) << "as cut before the file was gone";
    EXPECT_STREQ(columnimport_match_name(import.get(), 1, nullptr), "Au");
    EXPECT_STREQ(columnimport_source_column(import.get(), 0, nullptr), "BH") << "without a mark";
}

TEST_F(CApi, AsksOnceForColumnsThatTheHostRequires) {
    columnimport_set_required(import.get(), 1, 1);
    EXPECT_EQ(show([](Person &person) {
                  EXPECT_EQ(sentence(), "");
                  pressOk(person);
                  poll("it is asked for", [] { return sentence().find("gold is needed") == 0; });
                  person.drag(Person::fileRow(1), Person::matchRow(1));
                  poll("the column that is used twice is named", [] { return sentence().find("HOLE stands at both") == 0; });
                  person.drag(Person::fileRow(2), Person::matchRow(1));
                  poll("all is well", [] { return sentence().empty(); });
                  person.drag(Person::fileRow(1), Person::matchRow(1));
                  pressOk(person);
              }),
              columnimport_ok);
    EXPECT_EQ(columnimport_match_position(import.get(), 1), 1);
}

// The sanitizers notice memory that is freed too early or never.
TEST_F(CApi, MayFreeAnImportDuringItsRun) {
    columnimport_import *given = import.release();
    runWithPerson(
        [given](Person &person) {
            onUserInterface([given] { columnimport_free(given); });
            EXPECT_EQ(matchTexts(), (Names{"HOLE", "Not used"}));
            pressOk(person);
        },
        [given] { return columnimport_show(given, nullptr) == columnimport_ok; });
}
