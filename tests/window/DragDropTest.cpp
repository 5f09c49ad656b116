// SPDX-License-Identifier: MIT

// The pointer in the two lists: marks, the row under the pointer, drags and drops.

#include "tests/window/FileRun.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <random>
#include <set>
#include <thread>

#include <wxImportCSVDialog.h>

namespace {

using Rows = std::vector<int>;

const Names fileColumns = {"HOLE", "FROM", "TO", "AU", "CU", "ZN", "PB", "AG", "FE", "AS"};
const Names start = {"HOLE", "FROM", "TO", "AU", "CU", "ZN", "PB", "AG", "Not used", "Not used"};

class DragDrop : public testing::Test {
protected:
    DragDrop() {
        run.useSavedMatches = true;
        run.matches = {"HOLE", "FROM", "TO", "AU", "CU", "ZN", "PB", "AG", "", ""};
    }

    FileRun run{"HOLE,FROM,TO,AU,CU,ZN,PB,AG,FE,AS\n",
                {"hole", "from", "to", "gold", "copper", "zinc", "lead", "silver", "x", "y"}};
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

/// A person's clicks and drags, each with what the lists show afterwards by the rules.
struct Rules {
    explicit Rules(Person &user) : person(user) {}

    Person &person;
    Names texts = start;
    std::set<int> marked;
    int anchor = -1;
    int selected = wxNOT_FOUND;

    void click(int row, int key = WXK_NONE) {
        if (key == WXK_NONE) {
            marked.clear();
        }
        if (key == WXK_SHIFT && anchor >= 0) {
            for (int between = std::min(anchor, row); between <= std::max(anchor, row); ++between) {
                marked.insert(between);
            }
        }
        marked.insert(row);
        anchor = row;
        clickWith(person, key, row, markedNow());
        expectShown();
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
        person.drag(placeOf(drag.from, drag.row), placeOf(drag.to, drag.target) + wxSize(30, 0));
        expectShown();
    }

    Rows markedNow() const { return {marked.begin(), marked.end()}; }

    void expectShown() const {
        expectMarked(markedNow());
        ASSERT_EQ(matchTexts(), texts);
        ASSERT_EQ(fileTexts(), fileColumns);
        ASSERT_EQ(read([] { return fileList().GetSelection(); }), selected);
    }
};

} // namespace

TEST_F(DragDrop, FollowsItsRulesInDragsOfEveryKind) {
    const Drag drags[] = {
        {List::file, 8, List::match, 8},
        {List::match, 3, List::match, 1},
        {List::match, 9, List::match, 2},
    };
    const char *seed = std::getenv("COLUMNIMPORT_SOAK_SEED");
    std::mt19937 random(seed != nullptr ? static_cast<unsigned>(std::atoi(seed)) : 1U);
    const auto upTo = [&random](int last) {
        return std::uniform_int_distribution<int>(0, last)(random);
    };
    const auto anyList = [&upTo] { return upTo(2) == 0 ? List::file : List::match; };
    const auto anyTarget = [&upTo] { return upTo(10) - 1; };
    run.confirmAfter([&](Person &person) {
        Rules rules(person);
        for (const Drag &drag : drags) {
            rules.drag(drag);
        }
        rules.click(2);
        rules.click(4, WXK_SHIFT);
        rules.drag({List::match, 3, List::match, 0});
        EXPECT_EQ(rules.markedNow(), (Rows{2, 3, 4}));
        rules.drag({List::match, 3, List::file, below});
        rules.drag({List::match, 7, List::file, 1});
        Names texts = {"AU", "AU", "Not used", "Not used", "Not used",
                       "ZN", "PB", "Not used", "FE",       "Not used"};
        EXPECT_EQ(rules.texts, texts);

        for (int number = 0; number < 150 && !HasFailure(); ++number) {
            const int keys[] = {WXK_NONE, WXK_SHIFT, WXK_CONTROL};
            if (upTo(3) == 0) {
                rules.click(upTo(9), keys[upTo(2)]);
            } else {
                rules.drag({anyList(), upTo(9), anyList(), anyTarget()});
            }
        }
        texts = rules.texts;
        std::replace(texts.begin(), texts.end(), std::string("Not used"), std::string());
        run.appColumns = texts;
    });
    EXPECT_EQ(run.matches, run.appColumns);
}

TEST_F(DragDrop, ExtendsARangeFromTheLastClickedRowAlsoIfItIsMarkedNoMore) {
    run.cancelAfter([](Person &person) {
        clickWith(person, WXK_SHIFT, 5, {5});
        person.click(Person::belowMatchRows());
        expectMarked({});
        clickWith(person, WXK_SHIFT, 3, {3, 4, 5});
        person.click(wxImportCSVDialog::BTN_REMATCH);
        expectMarked({});
        clickWith(person, WXK_SHIFT, 6, {3, 4, 5, 6});
        EXPECT_EQ(hoverRows(), Rows());
    });
}

TEST_F(DragDrop, MarksOnlyExistingRowsOfARange) {
    run.matches = {"HOLE", "FROM"};
    run.cancelAfter([](Person &person) {
        person.click(wxImportCSVDialog::CHECK_HEADER);
        poll("every row is shown", [] { return matchTexts().size() == 10; });
        clickWith(person, WXK_NONE, 0, {0});
        clickWith(person, WXK_CONTROL, 9, {0, 9});
        person.click(wxImportCSVDialog::CHECK_HEADER);
        poll("only the saved rows are shown", [] { return matchTexts().size() == 2; });
        clickWith(person, WXK_SHIFT, 0, {0, 1});
    });
}

TEST_F(DragDrop, AssignsByADoubleClickButNotByADragAfterAClick) {
    run.cancelAfter([](Person &person) {
        Names texts = start;
        const auto expectChange = [&texts](std::size_t row, const std::string &name) {
            texts[row] = name;
            poll("only the row becomes " + name, [&texts] { return matchTexts() == texts; });
        };
        person.click(Person::fileRow(0));
        person.drag(Person::fileRow(0), Person::matchRow(3));
        person.click(Person::fileRow(0));
        expectChange(3, "HOLE");
        person.drag(Person::fileRow(1), Person::matchRow(4));
        person.click(Person::fileRow(1));
        expectChange(4, "FROM");
        clickWith(person, WXK_NONE, 5, {5});
        person.click(Person::fileRow(9));
        EXPECT_EQ(markedRows(), Rows{5}) << "the first click leaves the marks";
        person.click(Person::fileRow(9));
        expectChange(5, "AS");
    });
}

TEST_F(DragDrop, AddsNoUndoStepIfNothingChanges) {
    run.cancelAfter([](Person &person) {
        person.drag(Person::fileRow(8), Person::matchRow(8));
        person.drag(Person::fileRow(9), Person::matchRow(9));
        person.strikeWith(WXK_CONTROL, 'z');
        poll("the last drag is undone", [] { return matchTexts()[9] == "Not used"; });
        person.drag(Person::matchRow(3), Person::matchRow(3) + wxSize(2, 0));
        person.drag(Person::fileRow(8), Person::matchRow(8));
        person.strikeWith(WXK_CONTROL, 'y');
        poll("redo is still there", [] { return matchTexts()[9] == "AS"; });
    });
}

TEST_F(DragDrop, ShowsTheRowUnderThePointerUnlessOneIsMarked) {
    run.cancelAfter([](Person &person) {
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
    });
}

TEST_F(DragDrop, IgnoresClicksBesideRowsRightClicksAndSecondClicks) {
    run.cancelAfter([](Person &person) {
        person.click(Person::fileRow(3));
        waitUntil("the entry is selected", [] { return fileList().GetSelection() == 3; });
        person.click(Person::belowFileRows());
        person.click(Person::fileRow(5), 3);
        EXPECT_EQ(read([] { return fileList().GetSelection(); }), 3);
        person.hoverAt(Person::matchRow(6), "row 6 is in hover", isInHover(6));
        person.click(Person::matchRow(6), 3);
        EXPECT_EQ(hoverRows(), Rows{6});
        clickWith(person, WXK_NONE, 2, {2});
        person.click(Person::matchRow(4), 3);
        EXPECT_EQ(hoverRows(), Rows());
        person.click(Person::fileRow(3));
        EXPECT_EQ(markedRows(), Rows{2});
        clickWith(person, WXK_NONE, 5, {5});
        person.press();
        EXPECT_EQ(hoverRows(), Rows());
        person.release();
        EXPECT_EQ(matchTexts(), start);
    });
}

TEST_F(DragDrop, LeavesNoDragRunningHoweverItEnds) {
    run.confirmAfter([](Person &person) {
        const auto expectNoDrag = [&person](const char *how) {
            EXPECT_EQ(matchTexts(), start) << how;
            person.drag(Person::fileRow(9), Person::matchRow(9));
            EXPECT_EQ(matchTexts().back(), "AS") << "after " << how;
            person.drag(Person::matchRow(8), Person::matchRow(9));
        };
        person.dragTo(Person::fileRow(1), Person::matchRow(5));
        person.strike(WXK_ESCAPE);
        person.drop();
        expectNoDrag("Escape");
        person.dragTo(Person::fileRow(5), Person::matchRow(5));
        person.press(3);
        person.release(3);
        person.drop();
        expectNoDrag("another button");
        person.dragTo(Person::fileRow(1), Person::matchRow(5));
        person.moveTo(wxPoint(1400, 1000));
        person.drop();
        expectNoDrag("outside of the window");
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
        expectNoDrag("a release before or just after the drag begins");
    });
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
    run.cancelAfter([&topRow](Person &person) {
        person.click(Person::matchRow(3), 5);
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
    });
}
