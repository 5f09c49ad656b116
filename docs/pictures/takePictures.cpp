// SPDX-License-Identifier: MIT

// Takes the pictures of the documents from the real dialog, with a real pointer.
//   take_pictures SAMPLES PICTURES
// Needs a screen, and `import` to read it.

#include "person/DialogRun.h"
#include "person/Screen.h"
#include "tests/ScratchFile.h"

#include <clocale>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <utility>

#include <wx/listctrl.h>
#include <wx/utils.h>
#include <wxImportCSVDialog.h>

namespace {

const Names collarColumns = {"holename", "easting", "northing", "elevation", "length"};
const Names surveyColumns = {"holename", "depth", "azimuth", "dip"};
const Names assayColumns = {"holename", "fromdepth", "todepth", "Au g/t",  "Cu %",
                            "Zn %",     "duplicate", "blank",   "standard"};

std::string samples;
std::string pictures;

std::string contentOf(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Saves a picture of the dialog with its frame, once the screen no longer changes.
void takePicture(const std::string &name) {
    const wxRect frame = read(frameOfDialog);
    const std::string path = pictures + '/' + name + ".png";
    std::ostringstream command;
    command << "import -window root -crop " << frame.width << 'x' << frame.height << '+' << frame.x
            << '+' << frame.y << " +repage -strip -define png:exclude-chunks=date,time '" << path
            << "'";
    std::string before;
    poll("two pictures of " + name + " are equal", [&] {
        if (std::system(command.str().c_str()) != 0) { // NOLINT(cert-env33-c): all of it is ours
            throw GivenUp("no picture: " + command.str());
        }
        const std::string now = contentOf(path);
        return std::exchange(before, now) == now;
    });
}

DialogRun runOf(const std::string &title, const Names &appColumns, const std::string &fileName) {
    DialogRun run;
    run.title = title;
    run.appColumns = appColumns;
    run.fileName = samples + '/' + fileName;
    run.height = 840;
    return run;
}

void waitForRow(int row, const std::string &text) {
    waitUntil("row " + std::to_string(row) + " reads " + text,
              [row, &text] { return matchList().GetItemText(row) == wxString(text); });
}

void takeProposal() {
    runOf("Import assays", assayColumns, "assays.csv").show([](Person &person) {
        waitForRow(0, "HOLE-ID");
        takePicture("dialog");
        pressCancel(person);
    });
}

void takeDrag() {
    runOf("Import assays", assayColumns, "assays.csv").show([](Person &person) {
        person.dragTo(Person::fileRow(2), Person::matchRow(2) + wxSize(60, 0));
        takePicture("dragging");
        person.drop();
        waitForRow(2, "To (m)");
        takePicture("dropped");
        pressCancel(person);
    });
}

void takeAssignments() {
    DialogRun run = runOf("Import assays", assayColumns, "assays.csv");
    run.useSavedMatches = true;
    run.matches = {"HOLE-ID", "From (m)", "To (m)", "", "", "", "", "", ""};
    run.show([](Person &person) {
        for (const int entry : {4, 5}) {
            const int row = entry - 1;
            const std::string name = read([entry] {
                                         return fileList().GetString(static_cast<unsigned>(entry));
                                     }).utf8_string();
            person.click(Person::fileRow(entry));
            person.click(Person::fileRow(entry));
            waitForRow(row, name);
        }
        takePicture("assigning");
        pressCancel(person);
    });
}

void takeMarks() {
    runOf("Import assays", assayColumns, "assays.csv").show([](Person &person) {
        person.click(Person::matchRow(6));
        person.keyDown(WXK_SHIFT);
        person.click(Person::matchRow(8));
        poll("three rows are marked", [] { return markedRows().size() == 3; });
        person.keyUp(WXK_SHIFT);
        person.dragTo(Person::matchRow(7), Person::fileRow(9) + wxSize(60, 0));
        takePicture("clearing");
        person.drop();
        pressCancel(person);
    });
}

void takeGuesses() {
    const ScratchFile file("HOLE_ID,From,To,Au g/t,ni_pct\nLR-20-001,0,1.5,0.42,0.11\n"
                           "LR-20-001,1.5,3,1.07,0.08\n");
    DialogRun run =
        runOf("Import assays", {"holename", "fromdepth", "todepth", "Au g/t", "Zn %"}, "");
    run.fileName = file.path();
    run.show([](Person &person) {
        poll("two rows are guesses", [] { return italicRows().size() == 2; });
        takePicture("guesses");
        pressCancel(person);
    });
}

void takeDelimiter() {
    runOf("Import surveys", surveyColumns, "surveys_fr.csv").show([](Person &person) {
        takePicture("delimiter");
        person.typeDelimiter(';');
        waitUntil("the columns are cut anew", [] { return fileList().GetCount() > 1; });
        takePicture("delimiter-typed");
        pressCancel(person);
    });
}

void takeDelimiterMenu() {
    runOf("Import surveys", surveyColumns, "surveys_fr.csv").show([](Person &person) {
        person.click(wxImportCSVDialog::TXT_DELIMITER);
        person.strike(WXK_DOWN);
        takePicture("delimiter-menu");
        person.strike(WXK_ESCAPE);
        pressCancel(person);
    });
}

void takeLanguage() {
    wxSetEnv("LANGUAGE", "de");
    std::setlocale(LC_ALL, "");
    runOf("Bohrlochverläufe importieren", surveyColumns, "surveys_fr.csv").show([](Person &person) {
        takePicture("language");
        pressCancel(person);
    });
}

void takePositions() {
    DialogRun run = runOf("Import surveys", surveyColumns, "surveys_without_titles.csv");
    run.firstLineHeader = false;
    run.show([](Person &person) {
        waitForRow(0, "Column1");
        takePicture("positions");
        pressCancel(person);
    });
}

void takeTable() {
    DialogRun run = runOf("Import holes", collarColumns, "");
    run.useSavedMatches = true;
    run.height = 620;
    run.showTable({"PROJECT", "HOLE_ID", "UTM_X", "UTM_Y", "ELEV_M", "LENGTH_M"},
                  [](Person &person) {
                      takePicture("table");
                      pressCancel(person);
                  });
}

} // namespace

int main(int argumentCount, char **arguments) {
    if (argumentCount != 3) {
        std::cerr << "usage: take_pictures SAMPLES PICTURES\n";
        return 2;
    }
    samples = arguments[1];
    pictures = arguments[2];
    std::setlocale(LC_ALL, "");
    try {
        takeProposal();
        takeDrag();
        takeAssignments();
        takeMarks();
        takeGuesses();
        takeDelimiter();
        takeDelimiterMenu();
        takePositions();
        takeTable();
        takeLanguage();
    } catch (const std::exception &problem) {
        std::cerr << "take_pictures: " << problem.what() << '\n';
        return 1;
    }
    return 0;
}
