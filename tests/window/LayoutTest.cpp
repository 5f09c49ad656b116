// SPDX-License-Identifier: MIT

// The place and text of everything in the dialog; a small frame does not squeeze it.

#include "person/DialogRun.h"
#include "tests/ScratchFile.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include <gtest/gtest.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>
#include <wxImportCSVDialog.h>

namespace {

using D = wxImportCSVDialog;

class Layout : public testing::Test {
protected:
    Layout() : file("BHID,UTM X,Depth\nDH-1,500,20\n") {
        run.fileName = file.path();
        run.appColumns = {"holename", "x"};
    }

    ScratchFile file;
    DialogRun run;
};

/// The place of a control in the client area of the dialog.
wxRect place(const wxWindow &window) {
    return {openDialog().ScreenToClient(window.GetParent()->ClientToScreen(window.GetPosition())),
            window.GetSize()};
}

wxWindow &labelled(const char *label) {
    wxWindow *found = wxWindow::FindWindowByLabel(label, &openDialog());
    if (found == nullptr) {
        throw GivenUp(std::string("there is nothing labelled ") + label);
    }
    return *found;
}

int right(const wxRect &rect) {
    return rect.x + rect.width;
}

int bottom(const wxRect &rect) {
    return rect.y + rect.height;
}

struct Figure {
    const char *what;
    int is;
    int wanted;
};

/// A figure of the layout at the scale in the environment of the test.
int scaled(int pixels) {
    const char *scale = std::getenv("GDK_DPI_SCALE");
    return static_cast<int>(std::lround((scale != nullptr ? std::atof(scale) : 1) * pixels));
}

/// The fixed places and sizes, however wide the platform's texts and box frames are.
std::vector<Figure> figures() {
    const wxRect preview = place(labelled("File Preview"));
    const wxRect text = place(control(D::TEXT_FILE_PREVIEW));
    const wxRect options = place(labelled("Options"));
    const wxRect label = place(labelled("Field Delimiter ('S' for 'space' 'T' for 'tab')"));
    const wxRect delimiter = place(control(D::TXT_DELIMITER));
    const wxRect check = place(control(D::CHECK_HEADER));
    const wxRect reset = place(control(D::BTN_REMATCH));
    const wxRect matching = place(labelled("Column Matching"));
    const wxRect files = place(control(D::LISTBOX_FILE));
    const wxRect arrow = place(*wxWindow::FindWindowByName("staticBitmap", &openDialog()));
    const wxRect matches = place(control(D::LISTBOX_MATCH));
    const wxRect ok = place(control(wxID_OK));
    const wxRect cancel = place(control(wxID_CANCEL));
    const int client = openDialog().GetClientSize().x;
    // The thickness of a box's frame on this platform.
    const wxSize frame = preview.GetSize() - text.GetSize();
    const wxPoint inside = text.GetPosition() - preview.GetPosition();
    return {
        {"frame: width", frameOfDialog().width, scaled(900)},
        {"frame: height, to the end of the screen", frameOfDialog().height,
         std::min(scaled(900), wxGetDisplaySize().y - 100)},
        {"preview box: left", preview.x, scaled(10)},
        {"preview box: top", preview.y, scaled(10)},
        {"preview: width", text.width, scaled(850)},
        {"preview: height", text.height, scaled(125)},
        {"options: left", options.x, scaled(10)},
        {"options: below the preview", options.y, bottom(preview) + scaled(10)},
        {"options: width", options.width, right(delimiter) - label.x + frame.x},
        {"options: height", options.height, bottom(check) - label.y + frame.y},
        {"label: left", label.x, options.x + inside.x},
        {"label: top", label.y, options.y + inside.y},
        {"delimiter: left", delimiter.x, right(label) + scaled(10)},
        {"delimiter: top", delimiter.y, label.y},
        {"delimiter: width", delimiter.width, scaled(25)},
        {"delimiter: height", delimiter.height, scaled(20)},
        {"check box: top", check.y, bottom(delimiter)},
        {"check box: middle", check.x + right(check), label.x + right(delimiter)},
        {"reset: top", reset.y, bottom(options)},
        {"reset: right", right(reset), client - scaled(25)},
        {"matching box: left", matching.x, scaled(10)},
        {"matching box: top", matching.y, bottom(reset)},
        {"matching box: width", matching.width,
         scaled(250) + scaled(50) + scaled(525) + scaled(20) + frame.x},
        {"matching box: height", matching.height, scaled(450) + frame.y},
        {"file list: left", files.x, matching.x + inside.x},
        {"file list: top", files.y, matching.y + inside.y},
        {"file list: width", files.width, scaled(250)},
        {"file list: height", files.height, scaled(450)},
        {"arrow: left", arrow.x, right(files)},
        {"arrow: top", arrow.y, files.y + scaled(200)},
        {"arrow: width", arrow.width, scaled(50)},
        {"arrow: height", arrow.height, scaled(50)},
        {"match list: left", matches.x, right(arrow)},
        {"match list: top", matches.y, files.y},
        {"match list: width", matches.width, scaled(525)},
        {"match list: height", matches.height, scaled(450)},
        {"match list: first column", matchList().GetColumnWidth(D::COLUMN_MATCH), scaled(245)},
        {"match list: second column", matchList().GetColumnWidth(D::COLUMN_APP), scaled(245)},
        {"OK: top", ok.y, bottom(matching) + scaled(20)},
        {"Cancel: top", cancel.y, ok.y},
        {"OK and Cancel: at the right",
         static_cast<int>(std::max(right(ok), right(cancel)) > reset.x), 1},
    };
}

std::vector<wxSize> sizes() {
    std::vector<wxSize> all;
    for (const wxWindow *box : openDialog().GetChildren()) {
        all.push_back(box->GetSize());
        for (const wxWindow *inside : box->GetChildren()) {
            all.push_back(inside->GetSize());
        }
    }
    return all;
}

} // namespace

TEST_F(Layout, GivesEachControlItsPlaceAndSize) {
    run.show([](Person &person) {
        for (const Figure &figure : read(figures)) {
            EXPECT_EQ(figure.is, figure.wanted) << figure.what;
        }
        pressCancel(person);
    });
}

TEST_F(Layout, GivesEachControlItsText) {
    run.title = "Import collars";
    run.show([](Person &person) {
        onUserInterface([] {
            EXPECT_EQ(openDialog().GetTitle(), "Import collars");
            EXPECT_EQ(control(D::CHECK_HEADER).GetLabel(), "First Line contain title");
            EXPECT_EQ(control(D::BTN_REMATCH).GetLabel(), "Reset to Default");
            const auto &preview = control<wxStaticText>(D::TEXT_FILE_PREVIEW);
            EXPECT_EQ(preview.GetLabelText(), "BHID,UTM X,Depth\nDH-1,500,20\n\n");
            EXPECT_TRUE(preview.GetFont().IsFixedWidth());
            EXPECT_LE(10 * preview.GetCharHeight(), preview.GetSize().y);
            const char *const headings[] = {"Matching", "Application"};
            for (const int column : {0, 1}) {
                wxListItem heading;
                heading.SetMask(wxLIST_MASK_TEXT);
                matchList().GetColumn(column, heading);
                EXPECT_EQ(heading.GetText(), headings[column]);
            }
        });
        pressCancel(person);
    });
}

TEST_F(Layout, KeepsTheSizesOfControlsInAFrameOfAnySize) {
    std::vector<wxSize> usual;
    run.show([&usual](Person &person) {
        usual = read(sizes);
        pressCancel(person);
    });
    for (const int size : {2147483647, 1600, 300, 100, 1, 0, -1, -70000}) {
        run.width = size;
        run.height = size;
        EXPECT_FALSE(run.show([&usual](Person &person) {
            EXPECT_EQ(read(sizes), usual);
            EXPECT_LE(read([] { return openDialog().GetSize().x; }), 8000);
            person.strike(WXK_ESCAPE);
        })) << size;
    }
}
