// SPDX-License-Identifier: MIT

// The dialog without a mouse: the current row, marks, the clipboard, and the tab order.

#include "person/DialogRun.h"
#include "person/openDialog.h"
#include "tests/ScratchFile.h"

#include <string>

#include <gtest/gtest.h>
#include <wxImportCSVDialog.h>

namespace {

using Rows = std::vector<int>;

class Keyboard : public testing::Test {
protected:
    Keyboard() : file("HOLE,FROM,TO,AU,CU,OTHER,OTHER2\n") {
        run.fileName = file.path();
        run.appColumns = {"hole", "from", "to", "gold", "copper"};
        run.useSavedMatches = true;
        run.matches = {"HOLE", "FROM", "TO", "AU", "CU"};
    }

    /// The focused control; in the match list, a part of it has the focus.
    static int focus() {
        const wxWindow *window = wxWindow::FindFocus();
        while (window != nullptr && window->GetId() < 0) {
            window = window->GetParent();
        }
        return window == nullptr ? wxID_NONE : window->GetId();
    }

    static void tabTo(Person &person, int controlId) {
        for (int steps = 0; steps < 10 && read(focus) != controlId; ++steps) {
            const int before = read(focus);
            person.strike(WXK_TAB);
            poll("Tab goes on", [before] { return read(focus) != before; });
        }
        ASSERT_EQ(read(focus), controlId);
    }

    static void expectRows(const Rows &marked, const Rows &hover) {
        poll("marked are " + testing::PrintToString(marked) + " and in hover is " +
                 testing::PrintToString(hover),
             [&] { return markedRows() == marked && hoverRows() == hover; });
    }

    static void expectTexts(const Names &texts) {
        poll("the rows read " + testing::PrintToString(texts),
             [&texts] { return matchTexts() == texts; });
    }

    ScratchFile file;
    DialogRun run;
};

} // namespace

TEST_F(Keyboard, TabFollowsTheReadingOrder) {
    run.show([](Person &person) {
        tabTo(person, wxImportCSVDialog::TXT_DELIMITER);
        for (const int next : {wxImportCSVDialog::CHECK_HEADER, wxImportCSVDialog::BTN_REMATCH,
                               wxImportCSVDialog::LISTBOX_FILE, wxImportCSVDialog::LISTBOX_MATCH}) {
            person.strike(WXK_TAB);
            poll("the focus is on " + std::to_string(next), [next] { return read(focus) == next; });
        }
        const auto x = [](int id) { return read([id] { return control(id).GetPosition().x; }); };
        const bool isOkFirst = x(wxID_OK) < x(wxID_CANCEL);
        person.strike(WXK_TAB);
        poll("the focus is on the first button",
             [=] { return read(focus) == (isOkFirst ? wxID_OK : wxID_CANCEL); });
        person.strike(WXK_ESCAPE);
    });
}

TEST_F(Keyboard, ArrowsMoveTheCurrentRowAndSpaceMarks) {
    run.show([](Person &person) {
        tabTo(person, wxImportCSVDialog::LISTBOX_MATCH);
        person.strike(WXK_END);
        expectRows({}, {4});
        person.strike(WXK_HOME);
        expectRows({}, {0});
        person.strike(WXK_DOWN);
        expectRows({}, {1});
        person.strike(WXK_SPACE);
        expectRows({1}, {});
        person.strikeWith(WXK_CONTROL, WXK_DOWN);
        person.strikeWith(WXK_CONTROL, WXK_DOWN);
        person.strikeWith(WXK_CONTROL, WXK_SPACE);
        expectRows({1, 3}, {});
        person.strikeWith(WXK_SHIFT, WXK_UP);
        expectRows({2, 3}, {});
        person.strikeWith(WXK_SHIFT, WXK_DOWN);
        person.strikeWith(WXK_SHIFT, WXK_DOWN);
        expectRows({3, 4}, {});
        person.strike(WXK_UP);
        expectRows({}, {3});
        person.strike('h');
        person.strike(WXK_UP);
        expectRows({}, {2});
        person.strike(WXK_ESCAPE);
    });
}

TEST_F(Keyboard, ScrollsTheCurrentRowIntoView) {
    run.appColumns = Names(300, "gold");
    run.useSavedMatches = false;
    run.show([](Person &person) {
        tabTo(person, wxImportCSVDialog::LISTBOX_MATCH);
        const int page = read([] { return matchList().GetCountPerPage(); });
        const struct {
            int key;
            int row;
        } ways[] = {{WXK_END, 299},
                    {WXK_PAGEUP, 299 - page},
                    {WXK_PAGEUP, 299 - 2 * page},
                    {WXK_PAGEDOWN, 299 - page},
                    {WXK_HOME, 0}};
        for (const auto &way : ways) {
            person.strike(way.key);
            expectRows({}, {way.row});
            const long top = read([] { return matchList().GetTopItem(); });
            EXPECT_TRUE(way.row >= top && way.row < top + page) << way.row << " under " << top;
        }
        person.strike(WXK_ESCAPE);
    });
}

TEST_F(Keyboard, ContinuesFromTheClickedRow) {
    run.show([](Person &person) {
        person.click(Person::matchRow(0));
        person.strike(WXK_DOWN);
        person.click(Person::fileRow(1));
        person.strikeWith(WXK_CONTROL, 'c');
        person.click(Person::matchRow(3));
        person.strikeWith(WXK_CONTROL, 'v');
        expectTexts({"HOLE", "FROM", "TO", "FROM", "CU"});
        person.strikeWith(WXK_SHIFT, WXK_DOWN);
        expectRows({3, 4}, {});
        person.strike(WXK_ESCAPE);
    });
}

TEST_F(Keyboard, CopiesAndPastesNamesLikeADrag) {
    EXPECT_TRUE(run.show([](Person &person) {
        tabTo(person, wxImportCSVDialog::LISTBOX_FILE);
        person.strike(WXK_HOME);
        waitUntil("an entry is selected", [] { return fileList().GetSelection() == 0; });
        person.strikeWith(WXK_CONTROL, 'c');
        person.strike(WXK_TAB);
        poll("the match list has the focus",
             [] { return read(focus) == wxImportCSVDialog::LISTBOX_MATCH; });
        person.strike(WXK_END);
        expectRows({}, {4});
        person.strikeWith(WXK_CONTROL, 'v');
        expectTexts({"HOLE", "FROM", "TO", "AU", "HOLE"});
        person.strike(WXK_UP);
        person.strikeWith(WXK_SHIFT, WXK_UP);
        expectRows({2, 3}, {});
        person.strike(WXK_DELETE);
        expectTexts({"HOLE", "FROM", "Not used", "Not used", "HOLE"});
        EXPECT_EQ(boldRows(), (Rows{2, 3}));
        person.strike(WXK_HOME);
        person.strike(WXK_DOWN);
        expectRows({}, {1});
        person.strikeWith(WXK_CONTROL, 'c');
        person.strike(WXK_DELETE);
        expectTexts({"HOLE", "Not used", "Not used", "Not used", "HOLE"});
        person.strike(WXK_HOME);
        person.strikeWith(WXK_CONTROL, 'v');
        person.strike(WXK_RETURN);
    }));
    EXPECT_EQ(run.matches, (Names{"FROM", "", "", "", "HOLE"}));
}

TEST_F(Keyboard, FindsColumnsByTypingAndAssignsThemOneAfterAnother) {
    run.matches = {"HOLE", "", "TO", "", ""};
    EXPECT_TRUE(run.show([](Person &person) {
        const auto type = [&person](const std::string &typed, int entry) {
            for (const char character : typed) {
                person.strike(character);
            }
            waitUntil(typed + " is found", [entry] { return fileList().GetSelection() == entry; });
        };
        tabTo(person, wxImportCSVDialog::LISTBOX_FILE);
        type("he", 5); // the first of two that contain it
        person.strikeWith(WXK_CONTROL, WXK_RETURN);
        expectRows({}, {3});
        type("ro", 1);
        person.strike(WXK_DOWN);
        person.strike(WXK_DOWN);
        type("", 3);
        person.strikeWith(WXK_CONTROL, WXK_RETURN);
        expectTexts({"HOLE", "OTHER", "TO", "AU", "Not used"});
        expectRows({}, {4});
        person.click(Person::matchRow(0));
        person.strikeWith(WXK_CONTROL, 'z');
        expectTexts({"HOLE", "OTHER", "TO", "Not used", "Not used"});
        person.click(Person::fileRow(4));
        person.click(Person::fileRow(4));
        expectTexts({"CU", "OTHER", "TO", "Not used", "Not used"});
        expectRows({}, {3});
        person.strikeWith(WXK_CONTROL, 'y');
        person.strike(WXK_RETURN);
    }));
    EXPECT_EQ(run.matches, (Names{"CU", "OTHER", "TO", "", ""}));
}

TEST_F(Keyboard, PressesOkByReturnAndCancelByEscapeOrItsLetterInBothLists) {
    for (const int list : {wxImportCSVDialog::LISTBOX_FILE, wxImportCSVDialog::LISTBOX_MATCH}) {
        for (const int key :
             {static_cast<int>(WXK_RETURN), static_cast<int>(WXK_ESCAPE), 0 + 'c'}) {
            EXPECT_EQ(run.show([=](Person &person) {
                tabTo(person, list);
                person.strike(WXK_DOWN);
                if (key != 'c') {
                    person.strike(key);
                } else if (read([] { return control(wxID_CANCEL).GetLabel().Contains("&"); })) {
                    person.strikeWith(WXK_ALT, key);
                } else { // Windows gives Cancel no letter.
                    person.strike(WXK_ESCAPE);
                }
            }),
                      key == WXK_RETURN);
        }
    }
}
