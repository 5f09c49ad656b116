// SPDX-License-Identifier: MIT

// The dialog over the windows and inside the event loops of different hosts.

#include "person/DialogRun.h"
#include "tests/ScratchFile.h"

#include <functional>

#include <gtest/gtest.h>
#include <gtk/gtk.h>
#include <wx/modalhook.h>
#include <wx/utils.h>
#include <wxImportCSVDialog.h>

namespace {

using Work = std::function<void()>;

class Host : public testing::Test {
protected:
    Host() : file("BHID,Dip\n") {
        // A host of this toolkit starts it before it can have a window.
        gtk_init(nullptr, nullptr);
        run.appColumns = {"holename", "dip"};
        run.fileName = file.path();
    }

    ScratchFile file;
    DialogRun run;
};

/// A shown window of the host with a button in it.
GtkWidget *newHostWindow() {
    GtkWidget *window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    gtk_container_add(GTK_CONTAINER(window), gtk_button_new_with_label("Import"));
    gtk_widget_show_all(window);
    return window;
}

/// The window above which the dialog is to stay.
GtkWindow *ownerOfDialog() {
    return gtk_window_get_transient_for(GTK_WINDOW(openDialog().GetHandle()));
}

/// Has the running loop do `work` in its next iteration.
void later(const Work &work) {
    const auto carryOut = [](void *data) -> gboolean {
        (*static_cast<Work *>(data))();
        return G_SOURCE_REMOVE;
    };
    g_idle_add_full(G_PRIORITY_DEFAULT_IDLE, carryOut, new Work(work),
                    [](void *data) { delete static_cast<Work *>(data); });
}

/// Does `work` in a plain main loop, which must run on afterwards.
void inMainLoop(const Work &work) {
    bool wentOn = false;
    later([&] {
        work();
        EXPECT_EQ(gtk_main_level(), 1U);
        later([&wentOn] {
            wentOn = true;
            gtk_main_quit();
        });
    });
    gtk_main();
    EXPECT_TRUE(wentOn) << "the host's own main loop ended with the dialog";
}

/// The same in the loop of an application object.
void inApplication(const Work &work) {
    GtkApplication *application =
        gtk_application_new("org.columnimport.test", G_APPLICATION_NON_UNIQUE);
    bool wentOn = false;
    Work activate = [&] {
        g_application_hold(G_APPLICATION(application));
        later([&] {
            work();
            later([&] {
                wentOn = true;
                g_application_release(G_APPLICATION(application));
            });
        });
    };
    g_signal_connect_swapped(application, "activate", G_CALLBACK(+[](Work *self) { (*self)(); }),
                             &activate);
    g_application_run(G_APPLICATION(application), 0, nullptr);
    EXPECT_TRUE(wentOn);
    g_object_unref(application);
}

/// Answers every dialog without showing it.
class AnsweringHook : public wxModalDialogHook {
public:
    AnsweringHook() { Register(); }

protected:
    int Enter(wxDialog *) override { return wxID_CANCEL; }
};

struct Mishap {};

void meetMishap(Person &person) {
    onUserInterface([] {
        openDialog().Bind(
            wxEVT_BUTTON, [](wxCommandEvent &) { throw Mishap(); }, wxImportCSVDialog::BTN_REMATCH);
    });
    person.click(wxImportCSVDialog::BTN_REMATCH);
}

} // namespace

TEST_F(Host, SurvivesAPeerMadeAfterGtkWhereWarningsAreFatal) {
    const auto all = static_cast<GLogLevelFlags>(G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_WARNING);
    const GLogLevelFlags before = g_log_set_always_fatal(all);
    { const wxImportCSVDialogPeer peer; }
    EXPECT_EQ(g_log_set_always_fatal(before) & all, all);
}

TEST_F(Host, OwnsTheDialogAndKeepsItsWindowUnchanged) {
    GtkWidget *window = newHostWindow();
    for (GtkWidget *handle : {window, gtk_bin_get_child(GTK_BIN(window))}) {
        run.owner = handle;
        EXPECT_TRUE(run.show([window](Person &person) {
            EXPECT_EQ(read(ownerOfDialog), GTK_WINDOW(window));
            pressOk(person);
        }));
        EXPECT_EQ(wxTopLevelWindows.GetCount(), 0U);
        EXPECT_TRUE(gtk_widget_get_visible(window));
    }
    EXPECT_EQ(G_OBJECT(window)->ref_count, 1U);
    gtk_widget_destroy(window);
}

TEST_F(Host, OpensTheDialogWithoutAWindow) {
    GtkWidget *loose = g_object_ref_sink(gtk_button_new());
    for (GtkWidget *handle : {static_cast<GtkWidget *>(nullptr), loose}) {
        run.owner = handle;
        EXPECT_TRUE(run.show([](Person &person) {
            EXPECT_EQ(read(ownerOfDialog), nullptr);
            pressOk(person);
        }));
    }
    g_object_unref(loose);
}

TEST_F(Host, MayDestroyItsWindowWhileTheDialogStaysOpen) {
    run.owner = newHostWindow();
    EXPECT_TRUE(run.show([this](Person &person) {
        onUserInterface([this] { gtk_widget_destroy(run.owner); });
        EXPECT_EQ(matchTexts(), (Names{"BHID", "Dip"}));
        pressOk(person);
    }));
    EXPECT_EQ(run.matches, (Names{"BHID", "Dip"}));
}

TEST_F(Host, CutsOffTheControlsInAFrameMadeSmall) {
    run.show([](Person &person) {
        const auto sizes = [] {
            std::vector<wxSize> all;
            for (const int id : std::initializer_list<int>{wxID_OK, wxImportCSVDialog::BTN_REMATCH,
                                                           wxImportCSVDialog::LISTBOX_FILE,
                                                           wxImportCSVDialog::LISTBOX_MATCH}) {
                all.push_back(control(id).GetSize());
            }
            return all;
        };
        const std::vector<wxSize> usual = read(sizes);
        const wxPoint corner = read([] { return wxPoint() + openDialog().GetClientSize(); });
        person.moveTo(corner - wxSize(20, 20));
        person.press();
        // The window manager takes over, as after a press on the frame's corner.
        onUserInterface([] {
            const wxPoint pointer = wxGetMousePosition();
            gtk_window_begin_resize_drag(GTK_WINDOW(openDialog().GetHandle()),
                                         GDK_WINDOW_EDGE_SOUTH_EAST, 1, pointer.x, pointer.y,
                                         GDK_CURRENT_TIME);
        });
        person.hoverAt(wxPoint(50, 50), "the frame is small",
                       [] { return openDialog().GetClientSize().x < 100; });
        person.release();
        EXPECT_EQ(read(sizes), usual);
        onUserInterface(pressCloseBox);
    });
}

TEST_F(Host, ContinuesItsLoopsHoweverARunEnds) {
    run.owner = newHostWindow();
    const auto importInEveryWay = [this] {
        EXPECT_TRUE(run.show(pressOk));
        EXPECT_FALSE(run.show(pressCancel));
        {
            const AnsweringHook hook;
            bool useSaved = false;
            EXPECT_FALSE(wxImportCSVDialogPeer().showWindow(
                run.owner, "Import", run.appColumns, run.fileName, &useSaved, &run.matches,
                &run.delimiter, &run.firstLineHeader, 900, 900));
        }
        EXPECT_THROW(run.show(meetMishap), Mishap);
        EXPECT_TRUE(run.show(pressOk));
    };
    importInEveryWay();
    EXPECT_EQ(gtk_main_level(), 0U);
    inMainLoop(importInEveryWay);
    inApplication(importInEveryWay);
    gtk_widget_destroy(run.owner);
}

TEST_F(Host, MayLeaveItsLoopBeforeTheDialogIsShown) {
    inMainLoop([this] {
        g_idle_add_full(
            G_PRIORITY_HIGH - 10,
            [](void *) -> gboolean {
                gtk_main_quit();
                return G_SOURCE_REMOVE;
            },
            nullptr, nullptr);
        bool useSaved = false;
        EXPECT_FALSE(wxImportCSVDialogPeer().showWindow(
            nullptr, "Import", run.appColumns, run.fileName, &useSaved, &run.matches,
            &run.delimiter, &run.firstLineHeader, 900, 900));
        while (gtk_events_pending() != 0) {
            gtk_main_iteration();
        }
    });
}
