// Which rows each way of filling the lists shows, and what sends the dialog from one to another.

#include "person/DialogRun.h"
#include "tests/ScratchFile.h"

#include <algorithm>

#include <gtest/gtest.h>
#include <wx/checkbox.h>
#include <wx/clipbrd.h>
#include <wx/textctrl.h>
#include <wxImportCSVDialog.h>

namespace {

const char *const content = "BHID,UTM X,Depth (m)\nDH-1,500,20\n";
const Names titles = {"BHID", "UTM X", "Depth (m)"};
const Names numbers = {"Column1", "Column2", "Column3"};

const Names collar = {"holename", "easting", "dip", "length"};
const Names proposal = {"BHID", "UTM X", "Not used", "Not used"};
const Names positions = {"Column1", "Column2", "Column3", "Not used"};
const Names onlyDepth = {"Depth (m)", "Not used", "Not used", "Not used"};
const Names noMatch(4, "Not used");

void look(Person &) {}

void clickBox(Person &person) {
    person.click(wxImportCSVDialog::CHECK_HEADER);
}

void reset(Person &person) {
    person.click(wxImportCSVDialog::BTN_REMATCH);
}

void dragLast(Person &person) {
    person.drag(Person::fileRow(2), Person::matchRow(3));
}

Act type(char character) {
    return [character](Person &person) { person.typeDelimiter(character); };
}

/// One thing that a person does, and what both lists show afterwards.
struct Step {
    Act act;
    Names matches;
    Names fileColumns;
};

struct Route {
    const char *name;
    bool useSaved;
    Names saved;
    bool firstLineHeader;
    std::vector<Step> steps;
};

void expectShown(const Step &step, const std::string &where) {
    poll(where + " shows " + testing::PrintToString(step.matches),
         [&step] { return matchTexts() == step.matches && fileTexts() == step.fileColumns; });
    std::vector<int> unused;
    for (std::size_t row = 0; row < step.matches.size(); ++row) {
        if (step.matches[row] == "Not used") {
            unused.push_back(static_cast<int>(row));
        }
        EXPECT_EQ(read([row] {
                      return matchList().GetItemText(static_cast<long>(row),
                                                     wxImportCSVDialog::COLUMN_APP);
                  }),
                  collar[row]);
    }
    EXPECT_EQ(boldRows(), unused) << where;
}

Act taking(const Route &route) {
    return [&route](Person &person) {
        for (std::size_t number = 0; number < route.steps.size(); ++number) {
            route.steps[number].act(person);
            expectShown(route.steps[number], route.name + (", step " + std::to_string(number)));
        }
        pressOk(person);
    };
}

/// What the host gets for the rows that the last step shows.
Names resultOf(const Route &route) {
    Names result = route.steps.back().matches;
    std::replace(result.begin(), result.end(), std::string("Not used"), std::string());
    return result;
}

DialogRun startOf(const Route &route) {
    DialogRun run;
    run.appColumns = collar;
    run.useSavedMatches = route.useSaved;
    run.matches = route.saved;
    run.firstLineHeader = route.firstLineHeader;
    return run;
}

} // namespace

TEST(Routes, OfAFileFollowTheBoxTheSavedMatchesTheButtonAndTheDelimiter) {
    const Names depth = {"Depth (m)", "", "", ""};
    const Route routes[] = {
        {"a first run",
         false,
         depth,
         true,
         {{look, proposal, titles},
          {clickBox, positions, numbers},
          {clickBox, proposal, titles},
          {clickBox, positions, numbers}}},
        {"saved matches",
         true,
         {"Depth (m)", "utm x", "", "gone"},
         true,
         {{look, onlyDepth, titles},
          {clickBox, positions, numbers},
          {clickBox, onlyDepth, titles}}},
        {"a reset",
         true,
         depth,
         true,
         {{look, onlyDepth, titles},
          {clickBox, positions, numbers},
          {reset, proposal, titles},
          {clickBox, positions, numbers},
          {clickBox, proposal, titles}}},
        {"no titles at the start",
         true,
         depth,
         false,
         {{look, positions, numbers}, {clickBox, proposal, titles}}},
        {"no saved matches", true, {}, true, {{look, proposal, titles}}},
        {"saved matches without a name", true, Names(4), true, {{look, proposal, titles}}},
        {"one saved match alone", true, {"Depth (m)"}, true, {{look, {"Depth (m)"}, titles}}},
        {"more saved matches than rows",
         true,
         {"Depth (m)", "", "", "", "BHID", "BHID"},
         true,
         {{look, onlyDepth, titles}}},
        {"another delimiter",
         true,
         {"BHID", "UTM X", "", ""},
         true,
         {{type('X'), noMatch, {"BHID,UTM", ",Depth (m)"}},
          {type(','), noMatch, titles},
          {type(';'), noMatch, {"BHID,UTM X,Depth (m)"}}}},
        {"a drag, and what keeps and drops it",
         false,
         {},
         true,
         {{dragLast, {"BHID", "UTM X", "Not used", "Depth (m)"}, titles},
          {type(','), {"BHID", "UTM X", "Not used", "Depth (m)"}, titles},
          {reset, proposal, titles}}},
    };
    const ScratchFile file(content);
    for (const Route &route : routes) {
        DialogRun run = startOf(route);
        run.fileName = file.path();
        EXPECT_TRUE(run.show(taking(route)));
        EXPECT_EQ(run.matches, resultOf(route)) << route.name;
        EXPECT_EQ(run.firstLineHeader, route.steps.back().fileColumns != numbers) << route.name;
        EXPECT_EQ(run.useSavedMatches, route.useSaved) << route.name;
    }
}

TEST(Routes, OfATableFollowTheSavedMatchesAndTheButton) {
    const Route routes[] = {
        {"by position",
         false,
         {"UTM X"},
         true,
         {{look, positions, numbers}, {reset, positions, numbers}}},
        {"proposed", true, {"", ""}, false, {{look, proposal, titles}, {reset, proposal, titles}}},
        {"saved",
         true,
         {"Depth (m)", "gone", "", ""},
         false,
         {{look, onlyDepth, titles}, {reset, proposal, titles}}},
        {"without columns", true, {}, true, {{look, noMatch, {}}}},
        {"without columns, by position", false, {}, true, {{look, noMatch, {}}}},
    };
    for (const Route &route : routes) {
        DialogRun run = startOf(route);
        EXPECT_TRUE(
            run.showTable(route.steps[0].fileColumns.empty() ? Names() : titles, taking(route)));
        EXPECT_EQ(run.matches, resultOf(route)) << route.name;
        EXPECT_EQ(run.useSavedMatches, route.useSaved) << route.name;
    }
}

TEST(Routes, OfAFileThatCannotBeReadLeaveEveryRowUnused) {
    const Route route = {"a missing file",
                         false,
                         {},
                         true,
                         {{look, noMatch, {}},
                          {type(';'), noMatch, {}},
                          {clickBox, noMatch, {}},
                          {reset, noMatch, {}}}};
    DialogRun run = startOf(route);
    run.fileName = "/nowhere/collar.csv";
    EXPECT_TRUE(run.show(taking(route)));
    EXPECT_EQ(run.matches, Names(4));
}

TEST(Routes, TheFileIsReadAgainForAnotherDelimiterAlone) {
    const ScratchFile file(content);
    DialogRun run;
    run.appColumns = collar;
    run.fileName = file.path();
    EXPECT_TRUE(run.show([&file](Person &person) {
        file.write("changed;meanwhile\n");
        for (const Act &act : {type(','), Act(clickBox), Act(clickBox), Act(reset)}) {
            act(person);
        }
        EXPECT_EQ(fileTexts(), titles);
        person.typeDelimiter(';');
        poll("the file is read again", [] { return fileTexts() == Names{"changed", "meanwhile"}; });
        pressOk(person);
    }));
}

TEST(Routes, OneCharacterFitsIntoTheDelimiterFieldAndItsFirstByteCounts) {
    const ScratchFile file(content);
    DialogRun run;
    run.fileName = file.path();
    EXPECT_TRUE(run.show([](Person &person) {
        person.emptyDelimiter();
        onUserInterface([] {
            const wxClipboardLocker clipboard;
            wxTheClipboard->SetData(new wxTextDataObject(wxString::FromUTF8("\xC3\xA9")));
        });
        person.keyDown(WXK_CONTROL);
        person.strike('v');
        person.keyUp(WXK_CONTROL);
        const auto holdsOne = [] {
            return control<wxTextCtrl>(wxImportCSVDialog::TXT_DELIMITER).GetValue() ==
                   wxString::FromUTF8("\xC3\xA9");
        };
        waitUntil("the character is pasted", holdsOne);
        person.strike('X');
        EXPECT_TRUE(read(holdsOne));
        pressOk(person);
    }));
    EXPECT_EQ(run.delimiter, '\xC3');
    EXPECT_EQ(run.matches, Names());
}
