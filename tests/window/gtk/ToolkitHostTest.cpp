// SPDX-License-Identifier: MIT

// A host that is written with the toolkit: it has an application object, windows with identifiers
// of the dialog's controls among others, and runs dialogs itself.

#include "tests/window/FileRun.h"

#include <functional>
#include <memory>
#include <utility>

#include <wx/app.h>
#include <wx/button.h>
#include <wx/frame.h>
#include <wx/init.h>
#include <wxImportODBCDialog.h>

namespace {

bool hasEnded = false;

class HostApplication : public wxApp {
public:
    HostApplication() { hasEnded = false; }
    ~HostApplication() override { hasEnded = true; }
};

/// Does `work` in the main loop of such a host. The loop ends with its only window, and the toolkit
/// with the host.
void inHost(const std::function<void(wxFrame &)> &work) {
    auto *application = new HostApplication;
    wxApp::SetInstance(application);
    auto toolkit = std::make_unique<wxInitializer>();
    const wxImportCSVDialogPeer madeBeforeAnyWindow;
    auto *frame = new wxFrame(nullptr, wxImportCSVDialog::LISTBOX_MATCH, "Host");
    for (int id = 1; id <= 10; ++id) {
        new wxButton(frame, id, "Import");
    }
    // The earliest moment at which someone could request it.
    frame->Bind(wxEVT_ACTIVATE, [&work, frame, isDone = false](wxActivateEvent &event) mutable {
        event.Skip();
        if (event.GetActive() && !std::exchange(isDone, true)) {
            frame->CallAfter([&work, frame] {
                work(*frame);
                frame->Close();
            });
        }
    });
    frame->Show();
    EXPECT_EQ(application->OnRun(), 0);
    EXPECT_EQ(wxApp::GetInstance(), application);
    toolkit.reset();
    EXPECT_TRUE(hasEnded);
}

/// A dialog with columns of its own.
class DerivedDialog : public wxImportCSVDialog {
public:
    using wxImportCSVDialog::loadHeader;
    using wxImportCSVDialog::wxImportCSVDialog;

    void showColumns(const Names &columns) {
        setFileSchema(columns);
        wxCommandEvent refresh;
        onCheckHeader(refresh);
    }
};

bool runItself(wxImportCSVDialog &dialog, const Steps &steps) {
    dialog.create();
    const bool isOk = runWithPerson(steps, [&dialog] { return dialog.ShowModal() == wxID_OK; });
    EXPECT_FALSE(dialog.isOk());
    return isOk;
}

} // namespace

TEST(ToolkitHost, KeepsItsApplicationItsLoopAndItsWindows) {
    inHost([](wxFrame &frame) {
        FileRun run("BHID,Dip\n", {"holename", "dip"});
        run.owner = frame.GetHandle();
        for (int times = 0; times < 2; ++times) {
            run.confirmAfter(
                [](Person &person) { person.drag(Person::fileRow(0), Person::matchRow(1)); });
            EXPECT_EQ(run.matches, (Names{"BHID", "BHID"}));
        }
    });
}

TEST(ToolkitHost, RunsTheDialogForATableItself) {
    inHost([](wxFrame &frame) {
        wxImportODBCDialog dialog(&frame, "Import", {"holename", "dip"}, "no file", true, {},
                                  {"BHID", "DIP"});
        EXPECT_FALSE(runItself(dialog, [](Person &person) {
            for (const int onlyForFiles : {5, 6, 7}) {
                EXPECT_EQ(read([=] { return openDialog().FindWindow(onlyForFiles); }), nullptr);
            }
            person.strike(WXK_ESCAPE);
        }));
        EXPECT_EQ(dialog.getColumnNames(), (Names{"BHID", "DIP"}));
        EXPECT_EQ(dialog.getDelimiter(), ',');
    });
}

TEST(ToolkitHost, RunsADerivedDialogThatRefreshesItsOwnColumns) {
    const ScratchFile file("BHID,Dip\n");
    inHost([&file](wxFrame &frame) {
        DerivedDialog dialog(&frame, "Import", {"holename", "dip", "depth"}, file.path(), false, {},
                             ';', true);
        dialog.loadHeader();
        const Names depth = {"HoleId", "plongee", "Depth"};
        const Names all = {"Depth", "plongee", "HoleId"};
        EXPECT_TRUE(runItself(dialog, [&](Person &person) {
            person.typeDelimiter(',');
            poll("the file is cut", [] { return fileTexts() == Names{"BHID", "Dip"}; });
            person.drag(Person::fileRow(1), Person::matchRow(2));
            onUserInterface([&dialog, &all] { dialog.showColumns(all); });
            EXPECT_EQ(fileTexts(), all);
            EXPECT_EQ(dialog.getColumnNames(), depth);
            person.click(Person::fileRow(0));
            person.strikeWith(WXK_CONTROL, 'z');
            poll("the columns of the file are back", [] {
                return matchTexts() == Names{"BHID", "Dip", "Dip"};
            });
            EXPECT_EQ(fileTexts(), (Names{"BHID", "Dip"}));
            person.strikeWith(WXK_CONTROL, 'y');
            poll("and go again", [&depth] { return matchTexts() == depth; });
            pressOk(person);
        }));
        EXPECT_EQ(dialog.getColumnNames(), depth);
        EXPECT_EQ(dialog.getDelimiter(), ',');
        EXPECT_TRUE(dialog.isFirstLineHeader());
    });
}
