// SPDX-License-Identifier: MIT

// The rows for each way of filling the lists, and the actions that switch between these ways.

#include "tests/window/FileRun.h"

#include <algorithm>
#include <filesystem>

#include <wx/checkbox.h>
#include <wx/clipbrd.h>
#include <wx/textctrl.h>
#include <wxImportCSVDialog.h>

namespace {

const char *const content = "BHID,UTM X,Depth (m)\nDH-1,500,20\n";
const Names titles = {"BHID", "UTM X", "Depth (m)"};
const Names collar = {"holename", "easting", "dip", "length"};

/// The content of both lists.
struct Lists {
    Names matches;
    Names fileColumns;
};

const Lists proposed = {{"BHID", "UTM X", "Not used", "Not used"}, titles};
const Lists numbered = {{"Column1", "Column2", "Column3", "Not used"},
                        {"Column1", "Column2", "Column3"}};
const Lists onlyDepth = {{"Depth (m)", "Not used", "Not used", "Not used"}, titles};
const Lists withDepth = {{"BHID", "UTM X", "Not used", "Depth (m)"}, titles};
const Lists empty = {Names(4, "Not used"), {}};

Lists unmatched(const Names &fileColumns) {
    return {Names(4, "Not used"), fileColumns};
}

void look(Person &) {}

void tick(Person &person) {
    person.click(wxImportCSVDialog::CHECK_HEADER);
}

void reset(Person &person) {
    person.click(wxImportCSVDialog::BTN_REMATCH);
}

void drag(Person &person) {
    person.drag(Person::fileRow(2), Person::matchRow(3));
}

Steps type(char character) {
    return [character](Person &person) { person.typeDelimiter(character); };
}

void undo(Person &person) {
    person.strikeWith(WXK_CONTROL, 'z');
}

void redo(Person &person) {
    person.strikeWith(WXK_CONTROL, 'y');
}

/// One action of a person, and the content of both lists afterwards.
struct Step {
    Steps action;
    Lists shown;
};

enum Source : unsigned char { aFile, aTable, emptyTable };

struct Route {
    const char *name;
    Names saved;
    bool useSaved;
    bool firstLineHeader;
    Source source;
    std::vector<Step> steps;
};

void expectShown(const Lists &lists, const std::string &where) {
    poll(where + " shows " + testing::PrintToString(lists.matches),
         [&lists] { return matchTexts() == lists.matches && fileTexts() == lists.fileColumns; });
    std::vector<int> unused;
    for (std::size_t row = 0; row < lists.matches.size(); ++row) {
        if (lists.matches[row] == "Not used") {
            unused.push_back(static_cast<int>(row));
        }
    }
    EXPECT_EQ(boldRows(), unused) << where;
    const Names shown = matchTexts(wxImportCSVDialog::COLUMN_APP);
    EXPECT_TRUE(std::equal(shown.begin(), shown.end(), collar.begin())) << where;
    std::vector<int> used;
    for (std::size_t entry = 0; entry < lists.fileColumns.size(); ++entry) {
        if (std::count(lists.matches.begin(), lists.matches.end(), lists.fileColumns[entry]) > 0) {
            used.push_back(static_cast<int>(entry));
        }
    }
    EXPECT_EQ(usedEntries(), used) << where;
}

void expectToTake(const Route &route) {
    FileRun run(content, collar);
    run.useSavedMatches = route.useSaved;
    run.matches = route.saved;
    run.firstLineHeader = route.firstLineHeader;
    const bool isTable = route.source != aFile;
    wxString delimiter;
    const auto act = [&](Person &person) {
        for (const Step &step : route.steps) {
            step.action(person);
            expectShown(step.shown, route.name);
        }
        if (isTable) {
            EXPECT_EQ(sentence(), "") << route.name;
        } else {
            delimiter = read(
                [] { return control<wxTextCtrl>(wxImportCSVDialog::TXT_DELIMITER).GetValue(); });
        }
        pressOk(person);
    };
    EXPECT_TRUE(isTable ? run.showTable(route.source == aTable ? titles : Names(), act)
                        : run.show(act));
    const Lists &last = route.steps.back().shown;
    Names result = last.matches;
    std::replace(result.begin(), result.end(), std::string("Not used"), std::string());
    EXPECT_EQ(run.matches, result) << route.name;
    EXPECT_TRUE(isTable || run.firstLineHeader == (last.fileColumns != numbered.fileColumns));
    EXPECT_TRUE(isTable || delimiter == run.delimiter) << route.name;
    EXPECT_EQ(run.useSavedMatches, route.useSaved) << route.name;
}

} // namespace

// clang-format off
TEST(Routes, ShowTheColumnsAndMatchesAfterEachStep) {
    const Names depth = {"Depth (m)", "", "", ""};
    const Names partly = {"Depth (m)", "utm x", "", "gone"};
    const Names tooMany = {"Depth (m)", "", "", "", "BHID", "BHID"};
    const Names both = {"BHID", "UTM X", "", ""};
    const Route routes[] = {
        {"a first run", depth, false, true, aFile,
         {{look, proposed}, {tick, numbered}, {tick, proposed}, {tick, numbered}}},
        {"saved matches", partly, true, true, aFile,
         {{look, onlyDepth}, {undo, onlyDepth}, {tick, numbered}, {undo, onlyDepth}, {redo, numbered},
          {tick, onlyDepth}}},
        {"a reset", depth, true, true, aFile,
         {{look, onlyDepth}, {reset, proposed}, {undo, onlyDepth}, {tick, numbered}, {tick, onlyDepth}, {tick, numbered}, {reset, proposed}, {undo, numbered}, {tick, onlyDepth},
          {reset, proposed}, {tick, numbered}, {tick, proposed}}},
        {"no titles at the start", depth, true, false, aFile, {{look, numbered}, {tick, proposed}}},
        {"saved matches without a name", Names(4), true, true, aFile, {{look, proposed}}},
        {"one saved match alone", {"Depth (m)"}, true, true, aFile, {{look, {{"Depth (m)"}, titles}}}},
        {"more saved matches than rows", tooMany, true, true, aFile, {{look, onlyDepth}}},
        {"another delimiter", both, true, true, aFile,
         {{type('X'), unmatched({"BHID,UTM", ",Depth (m)"})}, {undo, proposed}, {tick, numbered},
          {tick, proposed}, {type('X'), unmatched({"BHID,UTM", ",Depth (m)"})},
          {type(','), unmatched(titles)},
          {type(';'), unmatched({"BHID,UTM X,Depth (m)"})}, {undo, unmatched(titles)},
          {type(';'), unmatched({"BHID,UTM X,Depth (m)"})}, {undo, unmatched(titles)},
          {redo, unmatched({"BHID,UTM X,Depth (m)"})}}},
        {"a drag, and what keeps and drops it", {}, false, true, aFile,
         {{drag, withDepth}, {type(','), withDepth}, {undo, proposed}, {redo, withDepth},
          {reset, proposed}, {drag, withDepth}, {undo, proposed}, {undo, withDepth}, {undo, withDepth},
          {redo, proposed}, {redo, withDepth}, {redo, withDepth}, {undo, proposed}}},
        {"a table by position", depth, false, true, aTable,
         {{look, numbered}, {reset, numbered}}},
        {"a table's proposal", {"", ""}, true, true, aTable,
         {{look, proposed}, {drag, withDepth}, {reset, proposed}, {undo, withDepth}}},
        {"a table's saved matches", partly, true, false, aTable,
         {{look, onlyDepth}, {reset, proposed}}},
        {"an empty table", {}, true, true, emptyTable, {{look, empty}}},
        {"an empty table by position", {}, false, true, emptyTable, {{look, empty}}},
    };
    for (const Route &route : routes) {
        expectToTake(route);
    }
}
// clang-format on

TEST(Routes, ReadTheFileAgainForAnotherDelimiterAlone) {
    FileRun run(content, collar);
    run.confirmAfter([&file = run.file](Person &person) {
        file.write("changed;meanwhile\n");
        for (const Steps &steps : {type(','), Steps(tick), Steps(tick), Steps(reset)}) {
            steps(person);
        }
        EXPECT_EQ(fileTexts(), titles);
        person.typeDelimiter(';');
        poll("the file is read again", [] { return fileTexts() == Names{"changed", "meanwhile"}; });
        std::filesystem::remove(std::filesystem::u8path(file.path()));
        person.typeDelimiter(',');
        poll("the file is found gone", [] { return fileTexts().empty(); });
    });
}

TEST(Routes, TakeOneCharacterAsDelimiterAndReturnItsFirstByte) {
    FileRun run(content, {});
    run.confirmAfter([](Person &person) {
        person.emptyDelimiter();
        onUserInterface([] {
            const wxClipboardLocker clipboard;
            wxTheClipboard->SetData(new wxTextDataObject(wxString::FromUTF8("\xC3\xA9")));
        });
        person.strikeWith(WXK_CONTROL, 'v');
        const auto holdsOne = [] {
            return control<wxTextCtrl>(wxImportCSVDialog::TXT_DELIMITER).GetValue() ==
                   wxString::FromUTF8("\xC3\xA9");
        };
        waitUntil("the character is pasted", holdsOne);
        person.strike('X');
        EXPECT_TRUE(read(holdsOne));
    });
    // A character that the locale can't encode is UTF-8.
    const std::string inLocale = wxString::FromUTF8("\xC3\xA9").ToStdString(wxConvLibc);
    EXPECT_EQ(run.delimiter, inLocale.empty() ? '\xC3' : inLocale.front());
}
