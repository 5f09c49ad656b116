// The dialog over the windows and inside the event loops of different hosts.

#include "person/DialogRun.h"
#include "tests/ScratchFile.h"

#include <functional>
#include <utility>

#include <gtest/gtest.h>
#include <gtk/gtk.h>
#include <wx/toplevel.h>
#include <wxImportCSVDialog.h>

namespace {

class Host : public testing::Test {
protected:
    Host() : file("BHID,Dip\n") {
        // Any host of this toolkit has started it before it can have a window.
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

/// The window that the dialog is told to stay above of.
GtkWindow *ownerOfDialog() {
    return gtk_window_get_transient_for(GTK_WINDOW(openDialog().GetHandle()));
}

gboolean carryOut(void *work) {
    (*static_cast<std::function<void()> *>(work))();
    return G_SOURCE_REMOVE;
}

/// Has the loop that is running do `work` when it comes round next.
void later(std::function<void()> work) {
    g_idle_add_full(G_PRIORITY_DEFAULT_IDLE, carryOut, new std::function<void()>(std::move(work)),
                    [](void *done) { delete static_cast<std::function<void()> *>(done); });
}

} // namespace

TEST_F(Host, TheDialogStaysAboveTheHostsWindowAndLeavesItAlone) {
    GtkWidget *window = newHostWindow();
    GtkWidget *button = gtk_bin_get_child(GTK_BIN(window));
    for (GtkWidget *handle : {window, button}) {
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

TEST_F(Host, WithoutAWindowTheDialogOpensAllTheSame) {
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

TEST_F(Host, AWindowDestroyedMeanwhileDoesNotTakeTheDialogAlong) {
    run.owner = newHostWindow();
    EXPECT_TRUE(run.show([this](Person &person) {
        onUserInterface([this] { gtk_widget_destroy(run.owner); });
        EXPECT_EQ(matchTexts(), (Names{"BHID", "Dip"}));
        pressOk(person);
    }));
    EXPECT_EQ(run.matches, (Names{"BHID", "Dip"}));
}

TEST_F(Host, APlainMainLoopGoesOnAfterEachRun) {
    run.owner = newHostWindow();
    bool wentOn = false;
    later([this, &wentOn] {
        EXPECT_TRUE(run.show(pressOk));
        EXPECT_FALSE(run.show(pressCancel));
        EXPECT_EQ(gtk_main_level(), 1U);
        later([&wentOn] {
            wentOn = true;
            gtk_main_quit();
        });
    });
    gtk_main();
    EXPECT_TRUE(wentOn) << "the host's own main loop ended with the dialog";
    gtk_widget_destroy(run.owner);
}

TEST_F(Host, AnApplicationObjectGoesOnAfterARun) {
    bool wentOn = false;
    const std::function<void(GtkApplication *)> useDialog = [&](GtkApplication *application) {
        run.owner = gtk_application_window_new(application);
        gtk_widget_show(run.owner);
        later([&] {
            EXPECT_TRUE(run.show(pressOk));
            later([&] {
                wentOn = true;
                gtk_widget_destroy(run.owner);
            });
        });
    };
    GtkApplication *application =
        gtk_application_new("org.columnimport.test", G_APPLICATION_NON_UNIQUE);
    g_signal_connect(application, "activate",
                     G_CALLBACK(+[](GtkApplication *self,
                                    const std::function<void(GtkApplication *)> *activate) {
                         (*activate)(self);
                     }),
                     const_cast<void *>(static_cast<const void *>(&useDialog)));
    g_application_run(G_APPLICATION(application), 0, nullptr);
    EXPECT_TRUE(wentOn);
    g_object_unref(application);
}
