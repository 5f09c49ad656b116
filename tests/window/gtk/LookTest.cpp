// SPDX-License-Identifier: MIT

// The look of the dialog in any theme and size of fonts: meaningful colours are distinct, and cut
// texts have tooltips.

#include "dragdrop/gtk/RowMarks.h"
#include "person/gtk/inkOf.h"
#include "tests/window/FileRun.h"

#include <gtk/gtk.h>
#include <wx/image.h>
#include <wx/settings.h>
#include <wx/statbmp.h>
#include <wxImportCSVDialog.h>

using columnimport::contrast;

namespace {

class Look : public testing::Test {
protected:
    FileRun run{"HOLE,FROM,TO\n", {"hole", "from", "to"}};
};

/// The text beside the pointer, in the one window that is neither the dialog nor a tooltip.
std::string labelOfDrag() {
    std::string text;
    GList *windows = gtk_window_list_toplevels();
    for (const GList *entry = windows; entry != nullptr; entry = entry->next) {
        GtkWidget *content = gtk_bin_get_child(GTK_BIN(entry->data));
        if (content != nullptr && GTK_IS_LABEL(content) && gtk_widget_get_mapped(content) != 0) {
            text += gtk_label_get_text(GTK_LABEL(content));
        }
    }
    g_list_free(windows);
    return text;
}

} // namespace

TEST_F(Look, ShowsBesideThePointerTheNamesOfADrag) {
    run.cancelAfter([](Person &person) {
        person.dragTo(Person::fileRow(1), Person::matchRow(2));
        waitUntil("the name is shown", [] { return labelOfDrag() == "FROM"; });
        person.drop();
        waitUntil("it is gone", [] { return labelOfDrag().empty(); });
        person.click(Person::matchRow(0));
        person.keyDown(WXK_SHIFT);
        person.click(Person::matchRow(1));
        poll("two rows are marked", [] { return markedRows().size() == 2; });
        person.keyUp(WXK_SHIFT);
        person.dragTo(Person::matchRow(0), Person::fileRow(2));
        waitUntil("so is their number", [] { return labelOfDrag() == "HOLE (2 rows)"; });
        person.drop();
    });
}

TEST_F(Look, MeetsTheContrastOfAccessibilityGuidelines) {
    EXPECT_NEAR(contrast(*wxBLACK, *wxWHITE), 21, 0.005);
    EXPECT_NEAR(contrast(wxColour(0x1A, 0x73, 0xE8), *wxWHITE), 4.51, 0.01);
    // In this case the best tone is an end of the scale.
    EXPECT_EQ(columnimport::markColours({150, 150, 150}, {70, 70, 70}).ground, *wxWHITE);
}

TEST_F(Look, DistinguishesMarksAndTheArrowFromTheirSurroundings) {
    run.cancelAfter([](Person &person) {
        person.click(Person::matchRow(1));
        poll("row 1 is marked", [] { return markedRows() == std::vector<int>{1}; });
        onUserInterface([] {
            const wxColour mark = matchList().GetItemBackgroundColour(1);
            EXPECT_GE(contrast(mark, matchList().GetBackgroundColour()), 3);
            EXPECT_GE(contrast(mark, wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT)), 3);
            EXPECT_GE(contrast(mark, matchList().GetItemTextColour(1)), 4.5);
            const wxImage picture = dynamic_cast<wxStaticBitmap &>(
                                        *wxWindow::FindWindowByName("staticBitmap", &openDialog()))
                                        .GetBitmap()
                                        .ConvertToImage();
            const wxSize middle = picture.GetSize() / 2;
            const wxColour shape(picture.GetRed(middle.x, middle.y),
                                 picture.GetGreen(middle.x, middle.y),
                                 picture.GetBlue(middle.x, middle.y));
            EXPECT_GE(contrast(shape, openDialog().GetBackgroundColour()), 4.5);
        });
        person.click(Person::matchRow(0));
        poll("row 1 is marked no more", [] { return markedRows() == std::vector<int>{0}; });
        EXPECT_EQ(read([] { return matchList().GetItemTextColour(1); }),
                  read([] { return matchList().GetForegroundColour(); }));
        person.strike(WXK_DOWN);
        poll("row 1 is in hover", [] { return hoverRows() == std::vector<int>{1}; });
        person.strikeWith(WXK_ALT, WXK_SPACE); // the control's key for selecting
        poll("it still is", [] { return hoverRows() == std::vector<int>{1}; });
    });
}

TEST_F(Look, ShowsACutNameInATooltipAndEllipsizesThePreview) {
    const std::string cut(60, 'W');
    FileRun wide("HOLE," + cut + "\n" + std::string(1000, '-') + "\n", {"hole", "from", "to"});
    wide.cancelAfter([&cut](Person &person) {
        const auto tipIs = [](const wxWindow &list, const std::string &tip) {
            return [&list, tip] { return list.GetToolTipText() == tip; };
        };
        wxListBox &files = fileList();
        person.hoverAt(Person::fileRow(1), "the whole name is shown", tipIs(files, cut));
        person.hoverAt(Person::fileRow(0), "there is no tooltip", tipIs(files, ""));
        onUserInterface([] {
            EXPECT_FALSE(isShownAsUsed(1));
            const int room = fileList().GetCharHeight();
            const int end = room + fileList().GetTextExtent("HOLE").x;
            const wxRect mark = inkOf(0, room);
            // In the middle of the room before the name.
            const int shift = mark.x + mark.width / 2 - room / 2;
            EXPECT_NEAR(shift, inkOf(0, 2 * end).GetRight() - end, 1);
        });
        person.drag(Person::fileRow(1), Person::matchRow(2));
        wxListCtrl &matches = matchList();
        person.hoverAt(Person::matchRow(2), "the whole name is shown", tipIs(matches, cut));
        person.hoverAt(Person::matchRow(0), "there is no tooltip", tipIs(matches, ""));
        EXPECT_TRUE(read([] { return isShownAsUsed(1); }));
        onUserInterface([] {
            const wxWindow &delimiter = control(wxImportCSVDialog::TXT_DELIMITER);
            int needed = 0;
            gtk_widget_get_preferred_height(delimiter.GetHandle(), &needed, nullptr);
            EXPECT_LE(needed, delimiter.GetSize().y) << "the delimiter is cut";
            GtkWidget *preview = control(wxImportCSVDialog::TEXT_FILE_PREVIEW).GetHandle();
            EXPECT_TRUE(pango_layout_is_ellipsized(gtk_label_get_layout(GTK_LABEL(preview))));
        });
    });
}
