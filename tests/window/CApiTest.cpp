// SPDX-License-Identifier: MIT

// Features that only the C header has: positions, the origins of matches, required columns, a file
// without its byte-order mark.

#include "person/DialogRun.h"
#include "tests/ScratchFile.h"

#include <filesystem>
#include <memory>

#include <columnimport.h>
#include <gtest/gtest.h>
#include <wx/clipbrd.h>

namespace {

using Rows = std::vector<int>;

/// An import of a file with this content into these columns.
class ByCHeader : public testing::Test {
protected:
    ByCHeader(const std::string &content, const Names &columns) : file(content) {
        columnimport_set_file(import.get(), file.path().c_str());
        for (const std::string &name : columns) {
            columnimport_add_column(import.get(), name.c_str());
        }
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

class CApi : public ByCHeader {
protected:
    CApi() : ByCHeader("\xEF\xBB\xBF\"BH,HOLE\",Au,Au,\n", {"hole", "gold"}) {}

    static std::string clipboardText() {
        const wxClipboardLocker clipboard;
        wxTextDataObject text;
        wxTheClipboard->GetData(text);
        return text.GetText().utf8_string();
    }
};

class Guess : public ByCHeader {
protected:
    Guess()
        : ByCHeader("HOLE_ID,Samp_From,To,Lith\n", {"holename", "fromdepth", "todepth", "litho"}) {
        columnimport_set_similar(import.get(), 3, 0); // which would be a guess
    }

    /// The origins after `steps` and OK.
    Rows originsAfter(const Steps &steps) {
        EXPECT_EQ(show([&steps](Person &person) {
                      expectGuesses({0, 1});
                      steps(person);
                      pressOk(person);
                  }),
                  columnimport_ok);
        Rows origins;
        origins.reserve(4);
        for (int column = 0; column < 4; ++column) {
            origins.push_back(columnimport_match_origin(import.get(), column));
        }
        return origins;
    }

    static void expectGuesses(const Rows &rows) {
        const std::string sentences[] = {"", "1 row in italics is a guess: check it.",
                                         "2 rows in italics are guesses: check them."};
        poll("guesses are " + testing::PrintToString(rows),
             [&] { return italicRows() == rows && sentence() == sentences[rows.size()]; });
    }
};

constexpr int similar = columnimport_origin_similar;
constexpr int synonym = columnimport_origin_synonym;
constexpr int byHand = columnimport_origin_by_hand;
constexpr int none = columnimport_none;

} // namespace

TEST_F(CApi, ReportsWhichOfTheEqualTitlesWasPasted) {
    EXPECT_EQ(columnimport_show(nullptr, nullptr), columnimport_wrong_use);
    EXPECT_EQ(
        show([this](Person &person) {
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
            EXPECT_EQ(matchTexts()[0], fileTexts()[4]);
            EXPECT_EQ(read([] { return openDialog().GetTextExtent(matchList().GetItemText(0)).x; }),
                      0);
            std::filesystem::remove(std::filesystem::u8path(file.path()));
            person.typeDelimiter(';');
            poll("the file is gone",
                 [] { return sentence() == "The file can't be read: No such file or directory"; });
            person.strikeWith(WXK_CONTROL, 'z');
            poll("all is as before", [] { return sentence().empty(); });
            pressCancel(person);
        }),
        columnimport_cancelled);
    EXPECT_EQ(columnimport_file_problem(import.get()), nullptr);
    EXPECT_EQ(columnimport_match_position(import.get(), 0), 4) << "the one with an empty title";
    EXPECT_STREQ(columnimport_match_name(import.get(), 0, nullptr), "");
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
                  poll("the column that is used twice is named",
                       [] { return sentence().find("HOLE stands at both") == 0; });
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

TEST_F(Guess, IsShownInItalicsUntilThePersonConfirmsOrReplacesIt) {
    const Rows origins = originsAfter([](Person &person) {
        EXPECT_EQ(boldRows(), Rows{3});
        // A trembling hand drops a row on itself during a click.
        person.drag(Person::matchRow(1), Person::matchRow(1) + wxSize(3, 0));
        expectGuesses({0, 1});
        person.drag(Person::fileRow(0), Person::matchRow(0));
        expectGuesses({1});
        person.strikeWith(WXK_CONTROL, 'z');
        expectGuesses({0, 1});
        person.strikeWith(WXK_CONTROL, 'y');
        person.click(Person::matchRow(1));
        person.strike(WXK_DELETE);
        expectGuesses({});
    });
    EXPECT_EQ(origins, (Rows{byHand, none, synonym, none}));
    EXPECT_EQ(columnimport_match_score(import.get(), 0), -1);
}

TEST_F(Guess, IsConfirmedByADoubleClickOrControlAndReturn) {
    const Rows origins = originsAfter([](Person &person) {
        person.click(Person::matchRow(1));
        person.click(Person::matchRow(1));
        expectGuesses({0});
        EXPECT_EQ(markedRows(), Rows{1});
        person.strikeWith(WXK_CONTROL, 'z');
        person.click(Person::matchRow(0));
        // The handler of the click reads the key state when it runs.
        poll("the row is marked", [] { return markedRows() == Rows{0}; });
        person.strikeWith(WXK_CONTROL, WXK_RETURN);
        expectGuesses({1});
        poll("the next guess is the current row", [] { return hoverRows() == Rows{1}; });
        person.strikeWith(WXK_CONTROL, WXK_RETURN);
        expectGuesses({});
        person.strikeWith(WXK_CONTROL, 'z');
        expectGuesses({1});
    });
    EXPECT_EQ(origins, (Rows{byHand, similar, synonym, none}));
    EXPECT_NEAR(columnimport_match_score(import.get(), 1), 0.4583, 0.02);
}

TEST_F(Guess, IsExplainedByATooltip) {
    originsAfter([](Person &person) {
        const auto tip = [] { return matchList().GetToolTipText().utf8_string(); };
        person.hoverAt(Person::matchRow(0), "both names are shown",
                       [&tip] { return tip() == "Similar names: HOLE_ID and holename"; });
        person.hoverAt(Person::matchRow(2), "nothing is", [&tip] { return tip().empty(); });
    });
}
