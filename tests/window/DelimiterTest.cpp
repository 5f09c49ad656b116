// SPDX-License-Identifier: MIT

// The ways to change the delimiter, and the status line for a file that it does not cut.

#include "person/DialogRun.h"
#include "tests/ScratchFile.h"

#include <tuple>

#include <gtest/gtest.h>
#include <wx/clipbrd.h>
#include <wx/menu.h>
#include <wx/textctrl.h>
#include <wxImportCSVDialog.h>

namespace {

using D = wxImportCSVDialog;

void waitForSelection() {
    waitUntil("the delimiter is selected", [] {
        const auto &field = control<wxTextCtrl>(D::TXT_DELIMITER);
        return field.HasFocus() && field.GetStringSelection() == field.GetValue();
    });
}

void clickIntoField(Person &person) {
    person.click(D::TXT_DELIMITER);
    waitForSelection();
}

/// Opens the field's menu with `open` and chooses its item number `place`.
Steps choose(int place, const Steps &open) {
    return [place, open](Person &person) {
        bool isOpen = false;
        onUserInterface([&isOpen] {
            control(D::TXT_DELIMITER).Bind(wxEVT_MENU_OPEN, [&isOpen](wxMenuEvent &) {
                isOpen = true;
            });
        });
        open(person);
        waitUntil("the menu is open", [&isOpen] { return isOpen; });
        for (int step = 0; step < place; ++step) {
            person.strike(WXK_DOWN);
        }
        person.strike(WXK_RETURN);
    };
}

void rightClick(Person &person) {
    person.moveTo(Person::middleOf(D::TXT_DELIMITER));
    person.press(3);
    person.release(3);
}

void expectToGive(char delimiter, const Steps &steps) {
    const ScratchFile file("a;b\tc d|e,f\n");
    DialogRun run;
    run.fileName = file.path();
    EXPECT_TRUE(run.show([&steps, delimiter](Person &person) {
        steps(person);
        poll("the line is cut at " + std::string(1, delimiter),
             [] { return fileTexts().front() != "a;b\tc d|e"; });
        pressOk(person);
    }));
    EXPECT_EQ(run.delimiter, delimiter);
}

} // namespace

TEST(Delimiter, IsReplacedByTheCharacterTypedAfterAClickOrTab) {
    expectToGive(';', [](Person &person) {
        clickIntoField(person);
        person.strike(';');
    });
    expectToGive('|', [](Person &person) {
        person.click(D::CHECK_HEADER);
        person.strikeWith(WXK_SHIFT, WXK_TAB);
        waitForSelection();
        person.strike('|');
    });
}

TEST(Delimiter, IsChosenByNameInTheMenuOfItsField) {
    expectToGive(';', choose(2, rightClick));
    expectToGive('|', [](Person &person) {
        onUserInterface([] {
            const wxClipboardLocker clipboard;
            wxTheClipboard->SetData(new wxTextDataObject("|"));
        });
        choose(6, rightClick)(person);
    });
    for (const auto &[delimiter, place, key] :
         {std::tuple('\t', 3, WXK_DOWN), std::tuple(' ', 4, WXK_WINDOWS_MENU)}) {
        expectToGive(delimiter, choose(place, [key = key](Person &person) {
                         clickIntoField(person);
                         person.strike(key);
                     }));
    }
}

TEST(Delimiter, IsExplainedInTheStatusLineIfTheFileGivesOneColumnOrNone) {
    const std::string undelimited = "The first line of the file does not contain this delimiter.";
    const std::string blank = "The first line of the file is blank.";
    const std::string missing = "The file can't be read: No such file or directory";
    const ScratchFile one("BHID;X\na,b\n"), quoted("\"a,b\""), spaces(" \t\na,b\n"), empty("");
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {one.path(), undelimited + "\nIt contains 1 semicolon.", ""},
        {quoted.path(), "", undelimited},
        {spaces.path(), blank, blank},
        {empty.path(), "The file is empty.", "The file is empty."},
        {"/nowhere/collar.csv", missing, missing},
    };
    for (const auto &[path, atFirst, withSemicolon] : cases) {
        DialogRun run;
        run.fileName = path;
        EXPECT_TRUE(run.show([&atFirst = atFirst, &withSemicolon = withSemicolon](Person &person) {
            EXPECT_EQ(sentence(), atFirst);
            person.typeDelimiter(';');
            poll("it says: " + withSemicolon, [&] { return sentence() == withSemicolon; });
            pressOk(person);
        }));
    }
}
