// SPDX-License-Identifier: MIT

// The dialog over the windows and inside the event loops of different hosts.

#include "tests/window/FileRun.h"

#include <functional>

#include <gtk/gtk.h>
#include <wx/modalhook.h>
#include <wxImportCSVDialog.h>

namespace {

using Work = std::function<void()>;

class Host : public testing::Test {
protected:
    // A host of this toolkit starts it before it can have a window.
    Host() { gtk_init(nullptr, nullptr); }

    FileRun run{"BHID,Dip\n", {"holename", "dip"}};
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

/// Does `work` in a loop of the host, which must run on afterwards until `quit` ends it.
void inLoop(const Work &runLoop, const Work &work, const Work &quit) {
    bool wentOn = false;
    later([&] {
        work();
        later([&] {
            wentOn = true;
            quit();
        });
    });
    runLoop();
    EXPECT_TRUE(wentOn) << "the host's own loop ended with the dialog";
}

void inMainLoop(const Work &work) {
    const auto workAndCheck = [&work] {
        work();
        EXPECT_EQ(gtk_main_level(), 1U);
    };
    inLoop(gtk_main, workAndCheck, gtk_main_quit);
}

void inApplication(const Work &work) {
    GApplication *application =
        G_APPLICATION(gtk_application_new("org.columnimport.test", G_APPLICATION_NON_UNIQUE));
    g_signal_connect(application, "activate", G_CALLBACK(+[] {}), nullptr);
    g_application_hold(application);
    inLoop([=] { g_application_run(application, 0, nullptr); }, work,
           [=] { g_application_release(application); });
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
        run.confirmAfter(
            [window](Person &) { EXPECT_EQ(read(ownerOfDialog), GTK_WINDOW(window)); });
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
        run.confirmAfter([](Person &) { EXPECT_EQ(read(ownerOfDialog), nullptr); });
    }
    g_object_unref(loose);
}

TEST_F(Host, MayDestroyItsWindowWhileTheDialogStaysOpen) {
    run.owner = newHostWindow();
    run.confirmAfter([this](Person &) {
        onUserInterface([this] { gtk_widget_destroy(run.owner); });
        EXPECT_EQ(matchTexts(), (Names{"BHID", "Dip"}));
    });
    EXPECT_EQ(run.matches, (Names{"BHID", "Dip"}));
}

TEST_F(Host, ContinuesItsLoopsHoweverARunEnds) {
    run.owner = newHostWindow();
    const auto importInEveryWay = [this] {
        EXPECT_TRUE(run.show(pressOk));
        EXPECT_FALSE(run.show(pressCancel));
        {
            const AnsweringHook hook;
            EXPECT_FALSE(run.showAlone());
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
        EXPECT_FALSE(run.showAlone());
        while (gtk_events_pending() != 0) {
            gtk_main_iteration();
        }
    });
}
