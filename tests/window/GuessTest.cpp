// SPDX-License-Identifier: MIT

// The difference between a guess and a certain match, and how one becomes the other.

#include "person/DialogRun.h"
#include "tests/ScratchFile.h"

#include <memory>

#include <columnimport.h>
#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/textctrl.h>
#include <wxImportCSVDialog.h>

namespace {

using Rows = std::vector<int>;

const std::string two = "2 rows in italics are guesses: check them.";
const std::string one = "1 row in italics is a guess: check it.";

void expectGuesses(const Rows &rows) {
    const std::string wanted = rows.size() == 2 ? two : rows.size() == 1 ? one : "";
    poll("guesses are " + testing::PrintToString(rows),
         [&] { return italicRows() == rows && sentence() == wanted; });
}

class Guess : public testing::Test {
protected:
    Guess() : file("HOLE_ID,Samp_From,To,Lith\n") {
        columnimport_set_file(import.get(), file.path().c_str());
        for (const char *name : {"holename", "fromdepth", "todepth", "litho"}) {
            columnimport_add_column(import.get(), name);
        }
        columnimport_set_similar(import.get(), 3, 0); // which would be a guess
    }

    /// The origins after `steps` and OK.
    std::vector<int> originsAfter(const Steps &steps) {
        runWithPerson(
            [&steps](Person &person) {
                expectGuesses({0, 1});
                steps(person);
                pressOk(person);
            },
            [this] { return columnimport_show(import.get(), nullptr) == columnimport_ok; });
        std::vector<int> origins;
        origins.reserve(4);
        for (int column = 0; column < 4; ++column) {
            origins.push_back(columnimport_match_origin(import.get(), column));
        }
        return origins;
    }

    ScratchFile file;
    std::unique_ptr<columnimport_import, decltype(&columnimport_free)> import{columnimport_new(),
                                                                              columnimport_free};
};

constexpr int similar = columnimport_origin_similar;
constexpr int synonym = columnimport_origin_synonym;
constexpr int byHand = columnimport_origin_by_hand;
constexpr int none = columnimport_none;

} // namespace

TEST_F(Guess, IsShownInItalicsUntilThePersonConfirmsOrReplacesIt) {
    const std::vector<int> origins = originsAfter([](Person &person) {
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
    EXPECT_EQ(origins, (std::vector<int>{byHand, none, synonym, none}));
    EXPECT_EQ(columnimport_match_score(import.get(), 0), -1);
}

TEST_F(Guess, IsConfirmedByADoubleClickOrControlAndReturn) {
    const std::vector<int> origins = originsAfter([](Person &person) {
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
    EXPECT_EQ(origins, (std::vector<int>{byHand, similar, synonym, none}));
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

TEST(LikelyDelimiter, IsOfferedAndTakenByAClickOrAKey) {
    const ScratchFile file("HOLE\tFROM\tTO\n");
    for (const bool isByKey : {false, true}) {
        DialogRun run;
        run.fileName = file.path();
        run.appColumns = {"holename", "from"};
        EXPECT_TRUE(run.show([isByKey](Person &person) {
            EXPECT_EQ(sentence(), "The first line of the file does not contain this delimiter.\n"
                                  "It contains 2 tabs.");
            const int button =
                read([] { return wxWindow::FindWindowByLabel("Use tab", &openDialog())->GetId(); });
            if (isByKey) {
                person.click(wxImportCSVDialog::CHECK_HEADER);
                person.click(wxImportCSVDialog::CHECK_HEADER);
                person.strike(WXK_TAB);
                waitUntil("the button has the keys",
                          [button] { return control(button).HasFocus(); });
                person.strike(WXK_SPACE);
            } else {
                person.click(button);
            }
            poll("it is taken", [] { return fileTexts() == Names{"HOLE", "FROM", "TO"}; });
            EXPECT_EQ(sentence(), one);
            EXPECT_EQ(read([] {
                          return wxWindow::FindWindowByLabel("Use tab", &openDialog()) == nullptr;
                      }),
                      true);
            person.strikeWith(WXK_CONTROL, 'z');
            poll("undo offers it again", [] { return sentence() != one; });
            person.strikeWith(WXK_CONTROL, 'y');
            poll("redo takes it again", [] { return sentence() == one; });
            pressOk(person);
        }));
        EXPECT_EQ(run.delimiter, '\t');
    }
}
