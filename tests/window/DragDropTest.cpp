// What the hand does in the two lists: marks, the row under the pointer, drags and drops.

#include "person/DialogRun.h"
#include "tests/ScratchFile.h"

#include <chrono>
#include <cstdlib>
#include <functional>
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

void expectHover(const Rows &wanted) {
    poll("in hover is " + testing::PrintToString(wanted),
         [&wanted] { return hoverRows() == wanted; });
}

std::function<bool()> isInHover(int row) {
    return [row] { return matchList().GetItemState(row, wxLIST_STATE_SELECTED) != 0; };
}

Names changed(Names texts, const std::vector<std::pair<std::size_t, std::string>> &changes) {
    for (const auto &[row, text] : changes) {
        texts[row] = text;
    }
    return texts;
}

Rows unusedRows(const Names &texts) {
    Rows rows;
    for (std::size_t row = 0; row < texts.size(); ++row) {
        if (texts[row] == "Not used") {
            rows.push_back(static_cast<int>(row));
        }
    }
    return rows;
}

/// Clicks with a key held down until the marks are as wanted: the handler asks for the keys as they
/// are when it runs.
void clickWith(Person &person, int key, const Rows &rows, const Rows &wanted) {
    person.keyDown(key);
    for (const int row : rows) {
        person.click(Person::matchRow(row));
    }
    expectMarked(wanted);
    person.keyUp(key);
}

} // namespace

TEST_F(DragDrop, ResultsBySourceAndTarget) {
    const Names result = changed(start, {{8, "FE"}, {1, "AU"}, {2, "Not used"}});
    EXPECT_TRUE(run.show([&result](Person &person) {
        Names texts = start;
        const auto expectTexts = [&texts](const char *after) {
            EXPECT_EQ(matchTexts(), texts) << after;
            EXPECT_EQ(boldRows(), unusedRows(texts)) << after;
            EXPECT_EQ(fileTexts(), fileColumns) << after;
        };
        person.drag(Person::fileRow(8), Person::matchRow(8));
        texts[8] = "FE";
        expectTexts("file column to an unused row");
        person.drag(Person::matchRow(3), Person::matchRow(1));
        texts[1] = "AU";
        expectTexts("row to another row");
        person.drag(Person::matchRow(9), Person::matchRow(2));
        texts[2] = "Not used";
        expectTexts("unused row to a matched one");
        person.drag(Person::matchRow(4), Person::matchRow(4) + wxSize(30, 0));
        expectTexts("row to itself");
        person.drag(Person::fileRow(0), Person::belowMatchRows());
        expectTexts("file column below the rows");
        person.drag(Person::matchRow(0), Person::belowMatchRows());
        expectTexts("row below the rows");
        person.drag(Person::fileRow(0), Person::fileRow(3));
        expectTexts("file column to the file list");
        EXPECT_EQ(texts, result);
        pressOk(person);
    }));
    EXPECT_EQ(run.matches, changed(result, {{2, ""}, {9, ""}}));
}

TEST_F(DragDrop, AClickMarksOneRowControlAddsOneAndShiftARange) {
    run.show([](Person &person) {
        clickWith(person, WXK_SHIFT, {4}, {4});
        person.click(Person::matchRow(5));
        expectMarked({5});
        clickWith(person, WXK_SHIFT, {2}, {2, 3, 4, 5});
        clickWith(person, WXK_CONTROL, {8, 3, 9}, {2, 3, 4, 5, 8, 9});
        clickWith(person, WXK_SHIFT, {7}, {2, 3, 4, 5, 7, 8, 9});
        person.click(Person::belowMatchRows());
        expectMarked({});
        clickWith(person, WXK_SHIFT, {6}, {6, 7});
        person.click(wxImportCSVDialog::BTN_REMATCH);
        expectMarked({});
        clickWith(person, WXK_SHIFT, {3}, {3, 4, 5, 6});
        EXPECT_EQ(hoverRows(), Rows());
        pressCancel(person);
    });
}

TEST_F(DragDrop, TheRowUnderThePointerIsShownUnlessOneIsMarked) {
    run.show([](Person &person) {
        person.hoverAt(Person::matchRow(2), "row 2 is in hover", isInHover(2));
        person.hoverAt(Person::matchRow(6), "row 6 is in hover", isInHover(6));
        EXPECT_EQ(hoverRows(), Rows{6});
        person.moveTo(Person::belowMatchRows());
        EXPECT_EQ(hoverRows(), Rows{6});
        person.click(Person::matchRow(1));
        expectMarked({1});
        expectHover({});
        person.moveTo(Person::matchRow(7));
        EXPECT_EQ(hoverRows(), Rows());
        // A drag out of the file list takes the marks away as it begins, and shows where it is.
        person.dragTo(Person::fileRow(2), Person::matchRow(4));
        expectHover({4});
        EXPECT_EQ(markedRows(), Rows());
        person.moveTo(Person::fileRow(5));
        EXPECT_EQ(hoverRows(), Rows{4});
        person.drop();
        EXPECT_EQ(matchTexts(), start);
        pressCancel(person);
    });
}

TEST_F(DragDrop, RowsDraggedBackToTheFileListAreCleared) {
    run.show([](Person &person) {
        person.click(Person::matchRow(2));
        expectMarked({2});
        clickWith(person, WXK_SHIFT, {4}, {2, 3, 4});
        person.drag(Person::matchRow(3), Person::matchRow(0));
        EXPECT_EQ(markedRows(), (Rows{2, 3, 4}));
        Names texts = changed(start, {{0, "AU"}});
        EXPECT_EQ(matchTexts(), texts);
        person.drag(Person::matchRow(3), Person::belowFileRows());
        texts = changed(texts, {{2, "Not used"}, {3, "Not used"}, {4, "Not used"}});
        EXPECT_EQ(matchTexts(), texts);
        EXPECT_EQ(boldRows(), unusedRows(texts));
        person.drag(Person::matchRow(7), Person::fileRow(1));
        EXPECT_EQ(markedRows(), Rows{7});
        EXPECT_EQ(matchTexts(), changed(texts, {{7, "Not used"}}));
        pressCancel(person);
    });
}

TEST_F(DragDrop, AClickInTheFileListSelectsAndLeavesTheMarks) {
    run.show([](Person &person) {
        person.click(Person::matchRow(2));
        expectMarked({2});
        person.click(Person::fileRow(3));
        waitUntil("the entry is selected", [] { return fileList().GetSelection() == 3; });
        person.click(Person::belowFileRows());
        EXPECT_EQ(read([] { return fileList().GetSelection(); }), 3);
        EXPECT_EQ(markedRows(), Rows{2});
        pressCancel(person);
    });
}

TEST_F(DragDrop, ComesOutOfADragHoweverItEnds) {
    const struct {
        const char *how;
        std::function<void(Person &)> end;
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
                 person.moveTo(Person::fileRow(5));
                 person.press();
                 person.moveTo(Person::fileRow(5) + wxSize(1 + milliseconds % 2, 0));
                 std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
                 person.release();
             }
             person.hoverAt(Person::matchRow(2), "no drag is left",
                            [] { return !isDragRunning() && isInHover(2)(); });
         }},
    };
    EXPECT_TRUE(run.show([&ways](Person &person) {
        Names texts = start;
        for (const auto &way : ways) {
            way.end(person);
            EXPECT_EQ(matchTexts(), texts) << way.how;
            person.drag(Person::fileRow(9), Person::matchRow(9));
            EXPECT_EQ(matchTexts(), changed(texts, {{9, "AS"}})) << "after " << way.how;
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

TEST_F(DragDrop, RowsOutOfViewAreReachedByTheWheelAndAtTheEdge) {
    run.appColumns = Names(300, "gold");
    run.useSavedMatches = false;
    const auto topRow = [] { return matchList().GetTopItem(); };
    run.show([&topRow](Person &person) {
        person.moveTo(Person::matchRow(3));
        person.press(5);
        person.release(5);
        waitUntil("the wheel scrolls", [&topRow] { return topRow() > 0; });
        const long top = read(topRow);
        person.drag(Person::fileRow(8), Person::matchRow(static_cast<int>(top) + 2));
        EXPECT_EQ(read([top] { return matchList().GetItemText(top + 2); }), "FE");
        EXPECT_EQ(read(topRow), top) << "a drag away from the edges does not scroll";

        person.dragTo(Person::fileRow(8), Person::matchRow(static_cast<int>(top) + 4));
        const wxPoint bottom = read([] {
            return openDialog().ScreenToClient(matchList().GetScreenRect().GetBottomLeft());
        });
        person.hoverAt(bottom + wxSize(60, -2), "the last row is in view", [] {
            return matchList().GetTopItem() + matchList().GetCountPerPage() >= 300;
        });
        const int last = 298;
        person.moveTo(Person::matchRow(last));
        waitUntil("the drag is over the row", isInHover(last));
        person.drop();
        EXPECT_EQ(read([] { return matchList().GetItemText(last); }), "FE");
        pressCancel(person);
    });
}

TEST_F(DragDrop, SoakOfMixedDragsFollowsTheRules) {
    const char *seed = std::getenv("COLUMNIMPORT_SOAK_SEED");
    std::mt19937 random(seed != nullptr ? static_cast<unsigned>(std::atoi(seed)) : 1U);
    const auto any = [&random] { return std::uniform_int_distribution<int>(0, 9)(random); };
    run.show([&any](Person &person) {
        Names texts = start;
        std::set<int> marked;
        const auto take = [&marked](int row) {
            if (marked.count(row) == 0) {
                marked = {row};
            }
        };
        for (int drags = 0; drags < 200; ++drags) {
            const int from = any();
            const int to = any();
            switch (any()) {
            case 0:
                person.click(Person::matchRow(from));
                marked = {from};
                break;
            case 1:
                clickWith(person, WXK_CONTROL, {from},
                          (marked.insert(from), Rows(marked.begin(), marked.end())));
                break;
            case 2:
                person.drag(Person::fileRow(from), Person::fileRow(to));
                marked.clear();
                break;
            case 3:
                take(from);
                person.drag(Person::matchRow(from), Person::belowFileRows());
                for (const int row : marked) {
                    texts[static_cast<std::size_t>(row)] = "Not used";
                }
                break;
            case 4:
                take(from);
                person.drag(Person::matchRow(from), Person::belowMatchRows());
                break;
            case 5:
            case 6:
                take(from);
                person.drag(Person::matchRow(from), Person::matchRow(to));
                texts[static_cast<std::size_t>(to)] = texts[static_cast<std::size_t>(from)];
                break;
            default:
                person.drag(Person::fileRow(from), Person::matchRow(to));
                texts[static_cast<std::size_t>(to)] = fileColumns[static_cast<std::size_t>(from)];
                marked.clear();
            }
            expectMarked(Rows(marked.begin(), marked.end()));
            ASSERT_EQ(matchTexts(), texts) << "after " << drags + 1 << " drags";
            ASSERT_EQ(boldRows(), unusedRows(texts));
        }
        pressOk(person);
    });
}
