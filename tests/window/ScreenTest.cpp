// SPDX-License-Identifier: MIT

// The visible part of the dialog, on any screen and with any size of fonts.

#include "tests/window/FileRun.h"

#include <wxImportCSVDialog.h>

namespace {

using D = wxImportCSVDialog;

/// The visible part of the dialog, as far as a program knows.
wxRect view() {
    const wxDialog &dialog = openDialog();
    const wxRect inside(dialog.ClientToScreen(wxPoint()), dialog.GetClientSize());
    return placesWindows() ? inside.Intersect(wxGetClientDisplayRect()) : inside;
}

Steps seeAndPressOk(const std::vector<int> &controls) {
    return [controls](Person &person) {
        onUserInterface([&controls] {
            for (const int id : controls) {
                const wxWindow &seen = control(id);
                const wxPoint place = seen.GetParent()->ClientToScreen(seen.GetPosition());
                EXPECT_TRUE(view().Contains(wxRect(place, seen.GetSize()))) << id;
            }
            const int rows = matchList().GetCountPerPage();
            EXPECT_GE(rows, 5);
            const wxWindow *preview = openDialog().FindWindow(D::TEXT_FILE_PREVIEW);
            if (preview != nullptr) {
                const int lines = preview->GetLabel().Freq('\n');
                EXPECT_LE(lines * preview->GetCharHeight(), preview->GetSize().y);
                if (rows > 6) { // the lists are lowered first
                    const wxSize size = preview->GetMinSize();
                    EXPECT_NEAR(size.y, size.x * 125.0 / 850, 1);
                }
            }
        });
        pressOk(person);
    };
}

} // namespace

TEST(Screen, ShowsTheOptionsTheButtonsAndFiveRowsWhole) {
    FileRun run("BHID,Dip\n\n\n\n\n\n\n\n\n\n\n", {"holename", "dip"});
    run.height = 840;
    for (const int width : {900, 3000}) {
        run.width = width;
        EXPECT_TRUE(run.show(seeAndPressOk(
            {D::TXT_DELIMITER, D::CHECK_HEADER, D::BTN_REMATCH, wxID_OK, wxID_CANCEL})));
        EXPECT_TRUE(
            run.showTable({"BHID", "Dip"}, seeAndPressOk({D::BTN_REMATCH, wxID_OK, wxID_CANCEL})));
    }
}
