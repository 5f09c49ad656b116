// SPDX-License-Identifier: MIT

// The dialog without a mouse: the current row, marks, the clipboard, and the tab order.

#include "tests/window/FileRun.h"

#include <wxImportCSVDialog.h>

namespace {

using D = wxImportCSVDialog;
using Rows = std::vector<int>;

class Keyboard : public testing::Test {
protected:
    Keyboard() {
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

    FileRun run{"HOLE,FROM,TO,AU,CU,OTHER,OTHER2\n", {"hole", "from", "to", "gold", "copper"}};
};

} // namespace

TEST_F(Keyboard, TabFollowsTheReadingOrder) {
    run.cancelAfter([](Person &person) {
        tabTo(person, D::TXT_DELIMITER);
        const auto x = [](int id) { return read([id] { return control(id).GetPosition().x; }); };
        const int firstButton = x(wxID_OK) < x(wxID_CANCEL) ? wxID_OK : wxID_CANCEL;
        for (const int next : {int{D::CHECK_HEADER}, int{D::BTN_REMATCH}, int{D::LISTBOX_FILE},
                               int{D::LISTBOX_MATCH}, firstButton}) {
            person.strike(WXK_TAB);
            poll("the focus is on " + std::to_string(next), [next] { return read(focus) == next; });
        }
    });
}

TEST_F(Keyboard, ArrowsMoveTheCurrentRowAndSpaceMarks) {
    // clang-format off
    const struct {
        int modifier, key;
        Rows marked, hover;
    } strikes[] = {
        {WXK_NONE, WXK_END, {}, {4}},
        {WXK_NONE, WXK_HOME, {}, {0}},
        {WXK_NONE, WXK_DOWN, {}, {1}},
        {WXK_NONE, WXK_SPACE, {1}, {}},
        {WXK_CONTROL, WXK_DOWN, {1}, {}},
        {WXK_CONTROL, WXK_DOWN, {1}, {}},
        {WXK_CONTROL, WXK_SPACE, {1, 3}, {}},
        {WXK_SHIFT, WXK_UP, {2, 3}, {}},
        {WXK_SHIFT, WXK_DOWN, {3}, {}},
        {WXK_SHIFT, WXK_DOWN, {3, 4}, {}},
        {WXK_NONE, WXK_UP, {}, {3}},
        {WXK_NONE, 'h', {}, {3}},
        {WXK_NONE, WXK_UP, {}, {2}},
        {WXK_SHIFT, WXK_UP, {1, 2}, {}},
    };
    // clang-format on
    run.cancelAfter([&strikes](Person &person) {
        tabTo(person, D::LISTBOX_MATCH);
        for (const auto &[modifier, key, marked, hover] : strikes) {
            if (modifier == WXK_NONE) {
                person.strike(key);
            } else {
                person.strikeWith(modifier, key);
            }
            expectRows(marked, hover);
        }
    });
}

TEST_F(Keyboard, ScrollsTheCurrentRowIntoView) {
    run.appColumns = Names(300, "gold");
    run.useSavedMatches = false;
    run.cancelAfter([](Person &person) {
        tabTo(person, D::LISTBOX_MATCH);
        const int page = read([] { return matchList().GetCountPerPage(); });
        for (const auto &[key, row] : {std::pair(WXK_END, 299),
                                       {WXK_PAGEUP, 299 - page},
                                       {WXK_PAGEUP, 299 - 2 * page},
                                       {WXK_PAGEDOWN, 299 - page},
                                       {WXK_HOME, 0}}) {
            person.strike(key);
            expectRows({}, {row});
            const long top = read([] { return matchList().GetTopItem(); });
            EXPECT_TRUE(row >= top && row < top + page) << row << " under " << top;
        }
    });
}

TEST_F(Keyboard, ContinuesFromTheClickedRow) {
    run.cancelAfter([](Person &person) {
        person.click(Person::matchRow(0));
        person.strike(WXK_DOWN);
        person.click(Person::fileRow(1));
        person.strikeWith(WXK_CONTROL, 'c');
        person.click(Person::matchRow(3));
        person.strikeWith(WXK_CONTROL, 'v');
        expectTexts({"HOLE", "FROM", "TO", "FROM", "CU"});
        person.strikeWith(WXK_SHIFT, WXK_DOWN);
        expectRows({3, 4}, {});
    });
}

TEST_F(Keyboard, CopiesAndPastesNamesLikeADrag) {
    run.confirmAfter([](Person &person) {
        tabTo(person, D::LISTBOX_FILE);
        person.strike(WXK_HOME);
        person.strikeWith(WXK_CONTROL, 'c');
        tabTo(person, D::LISTBOX_MATCH);
        person.strike(WXK_END);
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
    });
    EXPECT_EQ(run.matches, (Names{"FROM", "", "", "", "HOLE"}));
}

TEST_F(Keyboard, FindsColumnsByTypingAndAssignsThemOneAfterAnother) {
    run.matches = {"HOLE", "", "TO", "", ""};
    run.confirmAfter([](Person &person) {
        const auto type = [&person](const std::string &typed, int entry) {
            for (const char character : typed) {
                person.strike(character);
            }
            waitUntil(typed + " is found", [entry] { return fileList().GetSelection() == entry; });
        };
        tabTo(person, D::LISTBOX_FILE);
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
    });
    EXPECT_EQ(run.matches, (Names{"CU", "OTHER", "TO", "", ""}));
}

TEST_F(Keyboard, PressesOkByReturnAndCancelByEscapeOrItsLetterInBothLists) {
    for (const int list : {D::LISTBOX_FILE, D::LISTBOX_MATCH}) {
        for (const int key : {int{WXK_RETURN}, int{WXK_ESCAPE}, int{'c'}}) {
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
