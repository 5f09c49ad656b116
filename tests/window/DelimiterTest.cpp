// SPDX-License-Identifier: MIT

// How a person gets another delimiter into its field.

#include "person/DialogRun.h"
#include "tests/ScratchFile.h"

#include <gtest/gtest.h>
#include <wx/menu.h>
#include <wx/textctrl.h>
#include <wxImportCSVDialog.h>

namespace {

using D = wxImportCSVDialog;

void waitForSelection(Person &) {
    waitUntil("the delimiter is selected", [] {
        const auto &field = control<wxTextCtrl>(D::TXT_DELIMITER);
        return field.HasFocus() && field.GetStringSelection() == field.GetValue();
    });
}

void expectToGive(char delimiter, const Steps &steps) {
    const ScratchFile file("a;b\tc d|e,f\n");
    DialogRun run;
    run.fileName = file.path();
    run.show([&steps, delimiter](Person &person) {
        steps(person);
        poll(std::string("the line is cut at ") + delimiter,
             [delimiter] { return fileTexts().size() == 2; });
        pressOk(person);
    });
    EXPECT_EQ(run.delimiter, delimiter);
}

} // namespace

TEST(Delimiter, IsReplacedByWhatIsTypedAfterAClickOrTab) {
    expectToGive(';', [](Person &person) {
        person.click(D::TXT_DELIMITER);
        waitForSelection(person);
        person.strike(';');
    });
    expectToGive('|', [](Person &person) {
        person.click(D::CHECK_HEADER);
        person.keyDown(WXK_SHIFT);
        person.strike(WXK_TAB);
        person.keyUp(WXK_SHIFT);
        waitForSelection(person);
        person.strike('|');
    });
}

TEST(Delimiter, IsChosenByNameInTheMenuOfItsField) {
    const struct {
        char delimiter;
        const char *name;
        Steps open;
    } cases[] = {
        {';', "Semicolon",
         [](Person &person) {
             person.moveTo(Person::middleOf(D::TXT_DELIMITER));
             person.press(3);
             person.release(3);
         }},
        {'\t', "Tab",
         [](Person &person) {
             person.click(D::TXT_DELIMITER);
             waitForSelection(person);
             person.strike(WXK_DOWN);
         }},
        {' ', "Space",
         [](Person &person) {
             person.click(D::TXT_DELIMITER);
             waitForSelection(person);
             person.strike(WXK_WINDOWS_MENU);
         }},
    };
    for (const auto &[delimiter, name, open] : cases) {
        wxMenu *menu = nullptr;
        wxString current;
        expectToGive(delimiter, [&, &open = open, &name = name](Person &person) {
            onUserInterface([&] {
                wxWindow &field = control(D::TXT_DELIMITER);
                field.Bind(wxEVT_MENU_OPEN, [&](wxMenuEvent &event) { menu = event.GetMenu(); });
                field.Bind(wxEVT_MENU_HIGHLIGHT, [&](wxMenuEvent &event) {
                    const wxMenuItem *item = menu->FindItem(event.GetMenuId());
                    current = item == nullptr ? wxString() : item->GetItemLabelText();
                });
            });
            open(person);
            waitUntil("the menu is open", [&] { return menu != nullptr; });
            for (wxString before; before != name; before = read([&] { return current; })) {
                person.strike(WXK_DOWN);
                waitUntil("another item is the current one",
                          [&] { return !current.empty() && current != before; });
            }
            person.strike(WXK_RETURN);
        });
    }
}
