// SPDX-License-Identifier: MIT

// The place and text of everything in the dialog; a small frame does not squeeze it.

#include "tests/window/FileRun.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include <wx/statbmp.h>
#include <wx/stattext.h>
#include <wxImportCSVDialog.h>

namespace {

using D = wxImportCSVDialog;

class Layout : public testing::Test {
protected:
    FileRun run{"BHID,UTM X,Depth\nDH-1,500,20\n", {"holename", "x"}};
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

/// A place of the same size.
wxRect at(const wxRect &rect, int x, int y) {
    return {wxPoint(x, y), rect.GetSize()};
}

/// A control's place and size, and those that it is to have.
struct Placed {
    const char *what;
    wxRect is;
    wxRect wanted;
};

/// A figure of the layout at the scale in the environment of the test.
int scaled(int pixels) {
    const char *scale = std::getenv("GDK_DPI_SCALE");
    return static_cast<int>(std::lround((scale != nullptr ? std::atof(scale) : 1) * pixels));
}

/// The fixed places and sizes, however wide the platform's texts and box frames are.
std::vector<Placed> placed() {
    const wxRect frame = frameOfDialog();
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
    const wxSize around = preview.GetSize() - text.GetSize();
    const wxPoint inside = text.GetPosition() - preview.GetPosition();
    const int screen = wxGetDisplaySize().y;
    return {
        {"the frame, which ends with the screen",
         frame,
         {frame.x, frame.y, scaled(900), std::min(scaled(900), screen - 100)}},
        {"the preview box", preview, at(preview, scaled(10), scaled(10))},
        {"the preview", text, {text.x, text.y, scaled(850), scaled(125)}},
        {"the options",
         options,
         {scaled(10), bottom(preview) + scaled(10), right(delimiter) - label.x + around.x,
          bottom(check) - label.y + around.y}},
        {"the label", label, at(label, options.x + inside.x, options.y + inside.y)},
        {"the delimiter", delimiter, {right(label) + scaled(10), label.y, scaled(25), scaled(20)}},
        {"the check box, in the middle", check,
         at(check, (label.x + right(delimiter) - check.width) / 2, bottom(delimiter))},
        {"the reset button", reset, at(reset, client - scaled(25) - reset.width, bottom(options))},
        {"the matching box",
         matching,
         {scaled(10), bottom(reset), scaled(250) + scaled(50) + scaled(525) + scaled(20) + around.x,
          scaled(450) + around.y}},
        {"the file list",
         files,
         {matching.x + inside.x, matching.y + inside.y, scaled(250), scaled(450)}},
        {"the arrow", arrow, {right(files), files.y + scaled(200), scaled(50), scaled(50)}},
        {"the match list", matches, {right(arrow), files.y, scaled(525), scaled(450)}},
        {"OK", ok, at(ok, ok.x, bottom(matching) + scaled(20))},
        {"Cancel", cancel, at(cancel, cancel.x, ok.y)},
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

void PrintTo(const wxRect &rect, std::ostream *out) {
    *out << rect.x << ", " << rect.y << ", " << rect.width << " x " << rect.height;
}

TEST_F(Layout, GivesEachControlItsPlaceAndSize) {
    run.cancelAfter([](Person &) {
        onUserInterface([] {
            for (const auto &[what, is, wanted] : placed()) {
                EXPECT_EQ(is, wanted) << what;
            }
            for (const int column : {D::COLUMN_MATCH, D::COLUMN_APP}) {
                EXPECT_EQ(matchList().GetColumnWidth(column), scaled(245));
            }
            EXPECT_GT(std::max(right(place(control(wxID_OK))), right(place(control(wxID_CANCEL)))),
                      place(control(D::BTN_REMATCH)).x);
        });
    });
}

TEST_F(Layout, GivesEachControlItsText) {
    run.title = "Import collars";
    run.cancelAfter([](Person &) {
        onUserInterface([] {
            EXPECT_EQ(openDialog().GetTitle(), "Import collars");
            EXPECT_EQ(control(D::CHECK_HEADER).GetLabel(), "First Line contain title");
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
    });
}

TEST_F(Layout, KeepsTheSizesOfControlsInAFrameOfAnySize) {
    std::vector<wxSize> usual;
    run.cancelAfter([&usual](Person &) { usual = read(sizes); });
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
