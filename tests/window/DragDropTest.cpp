// SPDX-License-Identifier: MIT

// The pointer in the two lists: marks, the row under the pointer, drags and drops.

#include "person/DialogRun.h"
#include "tests/ScratchFile.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <random>
#include <set>
#include <thread>

#include <gtest/gtest.h>
#include <wxImportCSVDialog.h>

namespace {

using Rows = std::vector<int>;

const Names fileColumns = {"HOLE", "FROM", "TO", "AU", "CU", "ZN", "PB", "AG", "FE", "AS"};
const Names start = {"HOLE", "FROM", "TO", "AU", "CU", "ZN", "PB", "AG", "Not used", "Not used"};

class DragDrop : public testing::Test {
protected:
    DragDrop() : file("HOLE,FROM,TO,AU,CU,ZN,PB,AG,FE,AS\n") {
        run.fileName = file.path();
        run.appColumns = {"hole", "from", "to",     "gold", "copper",
                          "zinc", "lead", "silver", "x",    "y"};
        run.useSavedMatches = true;
        run.matches = {"HOLE", "FROM", "TO", "AU", "CU", "ZN", "PB", "AG", "", ""};
    }

    ScratchFile file;
    DialogRun run;
};

void expectMarked(const Rows &wanted) {
    poll("marked are " + testing::PrintToString(wanted),
         [&wanted] { return markedRows() == wanted; });
}

/// Clicks on a row and holds a key down until the marks are as expected, since the handler reads
/// the key state when it runs.
void clickWith(Person &person, int key, int row, const Rows &wanted) {
    if (key != WXK_NONE) {
        person.keyDown(key);
    }
    person.click(Person::matchRow(row));
    expectMarked(wanted);
    if (key != WXK_NONE) {
        person.keyUp(key);
    }
}

std::function<bool()> isInHover(int row) {
    return [row] { return matchList().GetItemState(row, wxLIST_STATE_SELECTED) != 0; };
}

/// The place below the rows of a list.
constexpr int below = -1;

enum class List { file, match };

wxPoint placeOf(List list, int row) {
    if (list == List::file) {
        return row == below ? Person::belowFileRows() : Person::fileRow(row);
    }
    return row == below ? Person::belowMatchRows() : Person::matchRow(row);
}

/// A drag from one place to another.
struct Drag {
    List from;
    int row;
    List to;
    int target;
};

/// The expected content of both lists by the rules of clicks and drags.
struct Rules {
    Names texts = start;
    std::set<int> marked;
    int anchor = -1;
    int selected = wxNOT_FOUND;

    void click(int row, int key) {
        if (key == WXK_NONE) {
            marked.clear();
        }
        if (key == WXK_SHIFT && anchor >= 0) {
            for (int between = std::min(anchor, row); between < std::max(anchor, row); ++between) {
                marked.insert(between);
            }
            marked.insert(anchor);
        }
        marked.insert(row);
        anchor = row;
    }

    void drag(const Drag &drag) {
        if (drag.from == List::file) {
            marked.clear();
            selected = drag.row;
        } else if (marked.count(drag.row) == 0) {
            marked = {drag.row};
        }
        const Names &source = drag.from == List::file ? fileColumns : texts;
        if (drag.to == List::match && drag.target != below) {
            texts[static_cast<std::size_t>(drag.target)] =
                source[static_cast<std::size_t>(drag.row)];
        } else if (drag.to == List::file) {
            for (const int row : marked) {
                texts[static_cast<std::size_t>(row)] = "Not used";
            }
        }
    }

    Rows markedNow() const { return {marked.begin(), marked.end()}; }

    void expectShown() const {
        expectMarked(markedNow());
        ASSERT_EQ(matchTexts(), texts);
        Rows unused;
        for (int row = 0; row < static_cast<int>(texts.size()); ++row) {
            if (texts[static_cast<std::size_t>(row)] == "Not used") {
                unused.push_back(row);
            }
        }
        ASSERT_EQ(boldRows(), unused);
        ASSERT_EQ(fileTexts(), fileColumns);
        ASSERT_EQ(read([] { return fileList().GetSelection(); }), selected);
    }
};

/// A person's actions and the rules, side by side.
struct Both {
    Person &person;
    Rules rules;

    void click(int row, int key = WXK_NONE) {
        rules.click(row, key);
        clickWith(person, key, row, rules.markedNow());
        rules.expectShown();
    }

    void drag(const Drag &drag) {
        rules.drag(drag);
        person.drag(placeOf(drag.from, drag.row), placeOf(drag.to, drag.target) + wxSize(30, 0));
        rules.expectShown();
    }
};

} // namespace

TEST_F(DragDrop, FollowsItsRulesInDragsOfEveryKind) {
    const Drag drags[] = {
        {List::file, 8, List::match, 8},     {List::match, 3, List::match, 1},
        {List::match, 9, List::match, 2},    {List::match, 4, List::match, 4},
        {List::file, 0, List::match, below}, {List::match, 0, List::match, below},
        {List::file, 0, List::file, 3},      {List::file, 4, List::file, below},
    };
    const char *seed = std::getenv("COLUMNIMPORT_SOAK_SEED");
    std::mt19937 random(seed != nullptr ? static_cast<unsigned>(std::atoi(seed)) : 1U);
    const auto upTo = [&random](int last) {
        return std::uniform_int_distribution<int>(0, last)(random);
    };
    const auto anyList = [&upTo] { return upTo(2) == 0 ? List::file : List::match; };
    const auto anyTarget = [&upTo] { return upTo(10) - 1; };
    EXPECT_TRUE(run.show([&](Person &person) {
        Both both{person, {}};
        for (const Drag &drag : drags) {
            both.drag(drag);
        }
        both.click(2);
        both.click(4, WXK_SHIFT);
        both.drag({List::match, 3, List::match, 0});
        EXPECT_EQ(both.rules.markedNow(), (Rows{2, 3, 4}));
        both.drag({List::match, 3, List::file, below});
        both.drag({List::match, 7, List::file, 1});
        Names texts = {"AU", "AU", "Not used", "Not used", "Not used",
                       "ZN", "PB", "Not used", "FE",       "Not used"};
        EXPECT_EQ(both.rules.texts, texts);

        for (int number = 0; number < 150 && !HasFailure(); ++number) {
            const int keys[] = {WXK_NONE, WXK_SHIFT, WXK_CONTROL};
            if (upTo(3) == 0) {
                both.click(upTo(9), keys[upTo(2)]);
            } else {
                both.drag({anyList(), upTo(9), anyList(), anyTarget()});
            }
        }
        texts = both.rules.texts;
        std::replace(texts.begin(), texts.end(), std::string("Not used"), std::string());
        run.appColumns = texts;
        pressOk(person);
    }));
    EXPECT_EQ(run.matches, run.appColumns);
}

TEST_F(DragDrop, MarksOneRowByAClickOneMoreWithControlAndARangeWithShift) {
    run.show([](Person &person) {
        clickWith(person, WXK_SHIFT, 5, {5});
        clickWith(person, WXK_SHIFT, 2, {2, 3, 4, 5});
        clickWith(person, WXK_CONTROL, 8, {2, 3, 4, 5, 8});
        clickWith(person, WXK_CONTROL, 3, {2, 3, 4, 5, 8});
        clickWith(person, WXK_SHIFT, 4, {2, 3, 4, 5, 8});
        person.click(Person::belowMatchRows());
        expectMarked({});
        clickWith(person, WXK_SHIFT, 6, {4, 5, 6});
        person.click(wxImportCSVDialog::BTN_REMATCH);
        expectMarked({});
        clickWith(person, WXK_SHIFT, 3, {3, 4, 5, 6});
        EXPECT_EQ(hoverRows(), Rows());
        pressCancel(person);
    });
}

TEST_F(DragDrop, MarksOnlyExistingRowsOfARange) {
    run.matches = {"HOLE", "FROM"};
    run.show([](Person &person) {
        person.click(wxImportCSVDialog::CHECK_HEADER);
        poll("every row is shown", [] { return matchTexts().size() == 10; });
        clickWith(person, WXK_NONE, 0, {0});
        clickWith(person, WXK_CONTROL, 9, {0, 9});
        person.click(wxImportCSVDialog::CHECK_HEADER);
        poll("only the saved rows are shown", [] { return matchTexts().size() == 2; });
        clickWith(person, WXK_SHIFT, 0, {0, 1});
        pressCancel(person);
    });
}

TEST_F(DragDrop, AssignsByADoubleClickButNotByADragAfterAClick) {
    run.show([](Person &person) {
        Names texts = start;
        const auto expectTexts = [&texts] {
            poll("the rows read " + testing::PrintToString(texts),
                 [&texts] { return matchTexts() == texts; });
        };
        person.click(Person::fileRow(0));
        person.drag(Person::fileRow(0), Person::matchRow(3));
        person.click(Person::fileRow(0));
        texts[3] = "HOLE";
        expectTexts();
        person.drag(Person::fileRow(1), Person::matchRow(4));
        person.click(Person::fileRow(1));
        texts[4] = "FROM";
        expectTexts();
        clickWith(person, WXK_NONE, 5, {5});
        person.click(Person::fileRow(9));
        EXPECT_EQ(markedRows(), Rows{5}) << "the first click leaves the marks";
        person.click(Person::fileRow(9));
        texts[5] = "AS";
        expectTexts();
        pressCancel(person);
    });
}

TEST_F(DragDrop, AddsNoUndoStepIfNothingChanges) {
    run.show([](Person &person) {
        person.drag(Person::fileRow(8), Person::matchRow(8));
        person.drag(Person::fileRow(9), Person::matchRow(9));
        person.strikeWith(WXK_CONTROL, 'z');
        poll("the last drag is undone", [] { return matchTexts()[9] == "Not used"; });
        person.drag(Person::matchRow(3), Person::matchRow(3) + wxSize(2, 0));
        person.drag(Person::fileRow(8), Person::matchRow(8));
        person.strikeWith(WXK_CONTROL, 'y');
        poll("redo is still there", [] { return matchTexts()[9] == "AS"; });
        pressCancel(person);
    });
}

TEST_F(DragDrop, ShowsTheRowUnderThePointerUnlessOneIsMarked) {
    run.show([](Person &person) {
        person.hoverAt(Person::matchRow(2), "row 2 is in hover", isInHover(2));
        person.hoverAt(Person::matchRow(6), "row 6 is in hover", isInHover(6));
        EXPECT_EQ(hoverRows(), Rows{6});
        person.moveTo(Person::belowMatchRows());
        EXPECT_EQ(hoverRows(), Rows{6});
        clickWith(person, WXK_NONE, 1, {1});
        EXPECT_EQ(hoverRows(), Rows());
        person.moveTo(Person::matchRow(7));
        EXPECT_EQ(hoverRows(), Rows());
        // A drag out of the file list clears the marks when it begins, and highlights its row.
        person.dragTo(Person::fileRow(2), Person::matchRow(0));
        EXPECT_EQ(hoverRows(), Rows{0});
        EXPECT_EQ(markedRows(), Rows());
        person.moveTo(Person::fileRow(5));
        EXPECT_EQ(hoverRows(), Rows{0});
        person.drop();
        EXPECT_EQ(matchTexts(), start);
        pressCancel(person);
    });
}

TEST_F(DragDrop, IgnoresClicksBesideRowsRightClicksAndSecondClicks) {
    run.show([](Person &person) {
        const auto rightClick = [&person](wxPoint place) {
            person.moveTo(place);
            person.press(3);
            person.release(3);
        };
        person.click(Person::fileRow(3));
        waitUntil("the entry is selected", [] { return fileList().GetSelection() == 3; });
        person.click(Person::belowFileRows());
        rightClick(Person::fileRow(5));
        EXPECT_EQ(read([] { return fileList().GetSelection(); }), 3);
        person.hoverAt(Person::matchRow(6), "row 6 is in hover", isInHover(6));
        rightClick(Person::matchRow(6));
        EXPECT_EQ(hoverRows(), Rows{6});
        clickWith(person, WXK_NONE, 2, {2});
        rightClick(Person::matchRow(4));
        EXPECT_EQ(hoverRows(), Rows());
        person.click(Person::fileRow(3));
        EXPECT_EQ(markedRows(), Rows{2});
        clickWith(person, WXK_NONE, 5, {5});
        person.press();
        EXPECT_EQ(hoverRows(), Rows());
        person.release();
        EXPECT_EQ(matchTexts(), start);
        pressCancel(person);
    });
}

TEST_F(DragDrop, DragsAColumnWithoutATitleLikeAnyOther) {
    const ScratchFile untitled("HOLE,,FROM\n");
    run.fileName = untitled.path();
    EXPECT_TRUE(run.show([](Person &person) {
        person.drag(Person::fileRow(1), Person::matchRow(1));
        EXPECT_EQ(matchTexts()[1], fileTexts()[1]);
        EXPECT_EQ(read([] { return matchList().GetTextExtent(matchList().GetItemText(1)).x; }), 0);
        pressOk(person);
    }));
    EXPECT_EQ(run.matches[1], "");
}

TEST_F(DragDrop, LeavesNoDragRunningHoweverItEnds) {
    const struct {
        const char *how;
        Steps end;
    } ways[] = {
        {"Escape",
         [](Person &person) {
             person.dragTo(Person::fileRow(1), Person::matchRow(5));
             person.strike(WXK_ESCAPE);
             person.drop();
         }},
        {"another button",
         [](Person &person) {
             person.dragTo(Person::fileRow(5), Person::matchRow(5));
             person.press(3);
             person.release(3);
             person.drop();
         }},
        {"outside of the window",
         [](Person &person) {
             person.dragTo(Person::fileRow(1), Person::matchRow(5));
             person.moveTo(wxPoint(1400, 1000));
             person.drop();
         }},
        {"a release before or just after the drag begins",
         [](Person &person) {
             for (int milliseconds = 0; milliseconds <= 25; ++milliseconds) {
                 const wxPoint from = Person::fileRow(5 + milliseconds % 2); // no second click
                 person.moveTo(from);
                 person.press();
                 person.moveTo(from + wxSize(1, 0));
                 std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
                 person.release();
             }
             person.hoverAt(Person::matchRow(2), "no drag is left",
                            [] { return !isDragRunning() && isInHover(2)(); });
         }},
    };
    EXPECT_TRUE(run.show([&ways](Person &person) {
        for (const auto &way : ways) {
            way.end(person);
            EXPECT_EQ(matchTexts(), start) << way.how;
            person.drag(Person::fileRow(9), Person::matchRow(9));
            EXPECT_EQ(matchTexts().back(), "AS") << "after " << way.how;
            person.drag(Person::matchRow(8), Person::matchRow(9));
        }
        pressOk(person);
    }));
    EXPECT_FALSE(run.show([](Person &person) {
        person.dragTo(Person::fileRow(1), Person::matchRow(5));
        onUserInterface([] { openDialog().Close(); });
        person.release();
    }));
}

TEST_F(DragDrop, ReachesRowsOutOfViewByTheWheelAndAtTheEdge) {
    run.appColumns = Names(80, "gold");
    run.useSavedMatches = false;
    const auto topRow = [] { return matchList().GetTopItem(); };
    run.show([&topRow](Person &person) {
        person.moveTo(Person::matchRow(3));
        person.press(5);
        person.release(5);
        waitUntil("the wheel scrolls", [&topRow] { return topRow() > 0; });
        const int top = static_cast<int>(read(topRow));
        person.drag(Person::fileRow(8), Person::matchRow(top + 2));
        EXPECT_EQ(matchTexts()[static_cast<std::size_t>(top + 2)], "FE");
        EXPECT_EQ(read(topRow), top) << "a drag away from the edges does not scroll";

        const wxPoint bottom = read([] {
            return openDialog().ScreenToClient(matchList().GetScreenRect().GetBottomLeft());
        });
        const auto scrollTo = [&person, top, bottom](int row) {
            person.dragTo(Person::fileRow(9), Person::matchRow(top + 4));
            person.hoverAt(bottom + wxSize(60, -4), "the row is in view", [row] {
                return matchList().GetTopItem() + matchList().GetCountPerPage() > row;
            });
        };
        scrollTo(top + 40);
        person.drop();
        const Names texts = matchTexts();
        const auto row = std::find(texts.begin(), texts.end(), "AS") - texts.begin();
        EXPECT_EQ(hoverRows(), Rows{static_cast<int>(row)}) << "the row that is lit gets the name";

        person.moveTo(Person::matchRow(3));
        onUserInterface([] { matchList().EnsureVisible(0); });
        scrollTo(79);
        person.hoverAt(Person::matchRow(78), "the drag is over the row", isInHover(78));
        person.drop();
        EXPECT_EQ(matchTexts()[78], "AS");

        const int rowHeight = Person::matchRow(78).y - Person::matchRow(77).y;
        person.dragTo(Person::fileRow(8), Person::matchRow(75));
        person.hoverAt(Person::matchRow(static_cast<int>(read(topRow))) -
                           wxSize(0, rowHeight / 2 - 2),
                       "the first row is in view", [&topRow] { return topRow() == 0; });
        person.drop();
        EXPECT_EQ(matchTexts()[0], "FE");
        person.strikeWith(WXK_CONTROL, 'z');
        person.strikeWith(WXK_CONTROL, 'z');
        waitUntil("undo brings its row into view", [&topRow] { return topRow() > 0; });
        EXPECT_EQ(matchTexts()[78], "Not used");
        pressCancel(person);
    });
}
