// Which rows each way of filling the lists shows, and what sends the dialog from one to another.

#include "person/DialogRun.h"
#include "tests/ScratchFile.h"

#include <gtest/gtest.h>
#include <wx/checkbox.h>
#include <wxImportCSVDialog.h>

namespace {

const Names collar = {"holename", "easting", "dip", "length"};

class Routes : public testing::Test {
protected:
    Routes() : file("BHID,UTM X,Depth (m)\nDH-1,500,20\n") {
        run.appColumns = collar;
        run.fileName = file.path();
    }

    static void expectShown(const Names &matches, const std::vector<int> &bold,
                            const Names &fileColumns) {
        EXPECT_EQ(matchTexts(), matches);
        EXPECT_EQ(boldRows(), bold);
        EXPECT_EQ(fileTexts(), fileColumns);
    }

    static void waitForRow(int row, const std::string &text) {
        waitUntil("row " + std::to_string(row) + " reads " + text,
                  [row, &text] { return matchList().GetItemText(row) == wxString(text); });
    }

    ScratchFile file;
    DialogRun run;
};

const Names fileColumns = {"BHID", "UTM X", "Depth (m)"};
const Names proposal = {"BHID", "UTM X", "Not used", "Not used"};
const Names positions = {"Column1", "Column2", "Column3", "Not used"};

} // namespace

TEST_F(Routes, AFreshRunShowsAProposalWithTheNamesAsTheFileHasThem) {
    EXPECT_TRUE(run.show([](Person &person) {
        expectShown(proposal, {2, 3}, fileColumns);
        EXPECT_EQ(read([] { return matchList().GetItemText(1, wxImportCSVDialog::COLUMN_APP); }),
                  "easting");
        EXPECT_EQ(read([] { return matchList().GetSelectedItemCount(); }), 0);
        EXPECT_EQ(read([] { return fileList().GetSelection(); }), wxNOT_FOUND);
        pressOk(person);
    }));
    EXPECT_EQ(run.matches, (Names{"BHID", "UTM X", "", ""}));
}

TEST_F(Routes, TheCheckBoxGoesBetweenPositionsAndProposal) {
    EXPECT_TRUE(run.show([](Person &person) {
        person.click(wxImportCSVDialog::CHECK_HEADER);
        waitForRow(0, "Column1");
        expectShown(positions, {3}, {"Column1", "Column2", "Column3"});
        person.click(wxImportCSVDialog::CHECK_HEADER);
        waitForRow(0, "BHID");
        expectShown(proposal, {2, 3}, fileColumns);
        person.click(wxImportCSVDialog::CHECK_HEADER);
        waitForRow(0, "Column1");
        pressOk(person);
    }));
    EXPECT_EQ(run.matches, (Names{"Column1", "Column2", "Column3", ""}));
    EXPECT_FALSE(run.firstLineHeader);
}

TEST_F(Routes, SavedMatchesAreShownWhereTheFileStillHasThem) {
    run.useSavedMatches = true;
    run.matches = {"Depth (m)", "utm x", "", "gone"};
    EXPECT_TRUE(run.show([](Person &person) {
        expectShown({"Depth (m)", "Not used", "Not used", "Not used"}, {1, 2, 3}, fileColumns);
        person.click(wxImportCSVDialog::CHECK_HEADER);
        waitForRow(0, "Column1");
        person.click(wxImportCSVDialog::CHECK_HEADER);
        waitForRow(0, "Depth (m)");
        pressOk(person);
    }));
    EXPECT_EQ(run.matches, (Names{"Depth (m)", "", "", ""}));
    EXPECT_TRUE(run.useSavedMatches);
}

TEST_F(Routes, ResetDropsTheSavedMatchesForGoodAndTicksTheBox) {
    run.useSavedMatches = true;
    run.matches = {"Depth (m)", "", "", ""};
    EXPECT_TRUE(run.show([](Person &person) {
        person.click(wxImportCSVDialog::CHECK_HEADER);
        waitForRow(0, "Column1");
        person.click(wxImportCSVDialog::BTN_REMATCH);
        waitForRow(0, "BHID");
        EXPECT_TRUE(read([] {
            return static_cast<wxCheckBox *>(
                       wxWindow::FindWindowById(wxImportCSVDialog::CHECK_HEADER))
                ->IsChecked();
        }));
        person.click(wxImportCSVDialog::CHECK_HEADER);
        waitForRow(0, "Column1");
        person.click(wxImportCSVDialog::CHECK_HEADER);
        waitForRow(0, "BHID");
        pressOk(person);
    }));
    EXPECT_TRUE(run.firstLineHeader);
}

TEST_F(Routes, SavedMatchesWithoutANameOrWithoutTitlesDoNotCount) {
    const struct {
        Names saved;
        bool firstLineHeader;
        Names shown;
    } cases[] = {
        {{}, true, proposal},
        {{"", "", "", ""}, true, proposal},
        {{"Depth (m)", "", "", ""}, false, positions},
        {{"Depth (m)"}, true, {"Depth (m)"}},
        {{"Depth (m)", "", "", "", "BHID", "BHID"},
         true,
         {"Depth (m)", "Not used", "Not used", "Not used"}},
    };
    for (const auto &row : cases) {
        run.useSavedMatches = true;
        run.matches = row.saved;
        run.firstLineHeader = row.firstLineHeader;
        run.show([&row](Person &person) {
            EXPECT_EQ(matchTexts(), row.shown);
            pressOk(person);
        });
        EXPECT_EQ(run.matches.size(), row.shown.size());
    }
}

TEST_F(Routes, AnotherDelimiterCutsTheFirstLineAgain) {
    run.useSavedMatches = true;
    run.matches = {"BHID", "UTM X", "", ""};
    EXPECT_TRUE(run.show([](Person &person) {
        person.typeDelimiter('X');
        waitUntil("the line is cut at each X", [] { return fileList().GetCount() == 2; });
        expectShown(Names(4, "Not used"), {0, 1, 2, 3}, {"BHID,UTM", ",Depth (m)"});
        person.typeDelimiter(',');
        waitUntil("the line is cut at each comma", [] { return fileList().GetCount() == 3; });
        expectShown(Names(4, "Not used"), {0, 1, 2, 3}, fileColumns);
        person.typeDelimiter(';');
        waitUntil("the line has one column", [] { return fileList().GetCount() == 1; });
        pressOk(person);
    }));
    EXPECT_EQ(run.delimiter, ';');
}

TEST_F(Routes, EmptyingTheDelimiterFieldOrTypingTheSameByteReadsNothing) {
    EXPECT_TRUE(run.show([this](Person &person) {
        std::ofstream(file.path()) << "changed\n";
        person.typeDelimiter(',');
        expectShown(proposal, {2, 3}, fileColumns);
        pressOk(person);
    }));
    EXPECT_EQ(run.delimiter, ',');
}

TEST_F(Routes, AFileThatCannotBeReadLeavesEveryRowUnused) {
    run.fileName = "/nowhere/collar.csv";
    EXPECT_TRUE(run.show([](Person &person) {
        expectShown(Names(4, "Not used"), {0, 1, 2, 3}, {});
        person.typeDelimiter(';');
        person.click(wxImportCSVDialog::CHECK_HEADER);
        person.click(wxImportCSVDialog::BTN_REMATCH);
        expectShown(Names(4, "Not used"), {0, 1, 2, 3}, {});
        pressOk(person);
    }));
    EXPECT_EQ(run.matches, Names(4, ""));
}

TEST_F(Routes, WithoutApplicationColumnsTheResultIsEmpty) {
    run.appColumns.clear();
    EXPECT_TRUE(run.show([](Person &person) {
        expectShown({}, {}, fileColumns);
        pressOk(person);
    }));
    EXPECT_EQ(run.matches, Names());
}

TEST_F(Routes, ATablesColumnsTakeOneOfThreeWays) {
    const struct {
        bool useSaved;
        Names saved;
        Names shown;
        Names afterReset;
        Names tableShown;
    } cases[] = {
        {false, {"UTM X"}, positions, positions, {"Column1", "Column2", "Column3"}},
        {true, {"", ""}, proposal, proposal, fileColumns},
        {true,
         {"Depth (m)", "gone", "", ""},
         {"Depth (m)", "Not used", "Not used", "Not used"},
         proposal,
         fileColumns},
    };
    for (const auto &row : cases) {
        run.useSavedMatches = row.useSaved;
        run.matches = row.saved;
        run.firstLineHeader = !row.useSaved;
        EXPECT_TRUE(run.showTable(fileColumns, [&row](Person &person) {
            EXPECT_EQ(matchTexts(), row.shown);
            EXPECT_EQ(fileTexts(), row.tableShown);
            for (const int onlyForFiles : {5, 6, 7}) {
                EXPECT_EQ(wxWindow::FindWindowById(onlyForFiles), nullptr);
            }
            person.click(wxImportCSVDialog::BTN_REMATCH);
            waitForRow(0, row.afterReset[0]);
            EXPECT_EQ(matchTexts(), row.afterReset);
            pressOk(person);
        }));
        EXPECT_EQ(run.useSavedMatches, row.useSaved);
        EXPECT_EQ(run.matches[0], row.afterReset[0]);
        EXPECT_EQ(run.matches.back(), "");
    }
}
