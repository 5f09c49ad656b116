// SPDX-License-Identifier: MIT

// The ways to change the delimiter, and the status line for a file that it does not cut.

#include "tests/window/FileRun.h"

#include <tuple>

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
    person.click(Person::middleOf(D::TXT_DELIMITER), 3);
}

void expectToGive(char delimiter, const Steps &steps) {
    FileRun run("a;b\tc d|e,f\n", {});
    run.confirmAfter([&steps, delimiter](Person &person) {
        steps(person);
        poll("the line is cut at " + std::string(1, delimiter),
             [] { return fileTexts().front() != "a;b\tc d|e"; });
    });
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
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"BHID;X\na,b\n", undelimited + "\nIt contains 1 semicolon.", ""},
        {"\"a,b\"", "", undelimited},
        {" \t\na,b\n", blank, blank},
        {"", "The file is empty.", "The file is empty."},
    };
    for (const auto &[content, atFirst, withSemicolon] : cases) {
        FileRun run(content, {});
        run.confirmAfter([&atFirst = atFirst, &withSemicolon = withSemicolon](Person &person) {
            EXPECT_EQ(sentence(), atFirst);
            person.typeDelimiter(';');
            poll("it says: " + withSemicolon, [&] { return sentence() == withSemicolon; });
        });
    }
}

TEST(LikelyDelimiter, IsOfferedAndTakenByAClickOrAKey) {
    FileRun run("HOLE\tFROM\tTO\n", {"holename", "from"});
    run.confirmAfter([](Person &person) {
        const auto button = [] { return wxWindow::FindWindowByLabel("Use tab", &openDialog()); };
        const auto expectOffer = [&button] {
            poll("it is offered", [&button] {
                return sentence() == "The first line of the file does not contain this delimiter.\n"
                                     "It contains 2 tabs." &&
                       read(button) != nullptr;
            });
        };
        const auto expectTaken = [&button] {
            poll("it is taken", [] { return fileTexts() == Names{"HOLE", "FROM", "TO"}; });
            EXPECT_EQ(sentence(), "1 row in italics is a guess: check it.");
            EXPECT_EQ(read(button), nullptr);
        };
        expectOffer();
        person.click(read([&button] { return button()->GetId(); }));
        expectTaken();
        person.strikeWith(WXK_CONTROL, 'z');
        expectOffer();
        person.click(D::CHECK_HEADER);
        person.click(D::CHECK_HEADER);
        person.strike(WXK_TAB);
        waitUntil("the button has the keys", [&button] { return button()->HasFocus(); });
        person.strike(WXK_SPACE);
        expectTaken();
        person.strikeWith(WXK_CONTROL, 'z');
        expectOffer();
        person.strikeWith(WXK_CONTROL, 'y');
        expectTaken();
    });
    EXPECT_EQ(run.delimiter, '\t');
}
