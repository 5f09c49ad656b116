// SPDX-License-Identifier: MIT

// Another program, from which text is dragged. Its window offers its arguments one after the other;
// those that begin with a blank, under a format without an encoding. It reports when it is ready
// and when a drag is over, and ends after the last one.
//
// It accepts drags that may move their data, and reports the first one, but never finishes one. It
// answers the first clipboard request slowly and hangs at the second; under Wayland, where nobody
// requests the same data twice, it hangs at once.

#include <cstdlib>
#include <cstring>
#include <iostream>
#include <utility>

#include <gdk/gdkwayland.h>
#include <glib-unix.h>
#include <gtk/gtk.h>
#include <poll.h>
#include <unistd.h>

namespace {

void say(const char *what) {
    std::cout << what << std::endl;
}

void offer(GtkWidget *area, const char *text) {
    GtkTargetList *names = gtk_target_list_new(nullptr, 0);
    const char *name = *text == ' ' ? "STRING" : "UTF8_STRING";
    gtk_target_list_add(names, gdk_atom_intern(name, FALSE), 0, 0);
    gtk_drag_source_set_target_list(area, names);
    gtk_target_list_unref(names);
}

void hand(GtkWidget *, GdkDragContext *, GtkSelectionData *data, guint, guint, char ***offered) {
    gtk_selection_data_set(data, gtk_selection_data_get_target(data), 8,
                           reinterpret_cast<guchar *>(**offered),
                           static_cast<int>(std::strlen(**offered)));
}

void goOn(GtkWidget *area, GdkDragContext *, char ***offered) {
    say("over");
    if (*++*offered == nullptr) {
        gtk_main_quit();
    } else {
        offer(area, **offered);
    }
}

void handSlowly(GtkClipboard *, GtkSelectionData *data, guint, void *) {
    static int milliseconds = GDK_IS_WAYLAND_DISPLAY(gdk_display_get_default()) ? -1 : 300;
    pollfd listener{STDOUT_FILENO, 0, 0};
    if (poll(&listener, 1, std::exchange(milliseconds, -1)) != 0) {
        std::_Exit(0);
    }
    gtk_selection_data_set_text(data, "slow", -1);
}

// The screen has the acceptance before the report.
gboolean accept(GtkWidget *, GdkDragContext *drag) {
    static bool isReported = false;
    if (gtk_drag_get_source_widget(drag) == nullptr && !std::exchange(isReported, true)) {
        gdk_display_sync(gdk_display_get_default());
        say("accepted");
    }
    return FALSE;
}

gboolean takeClipboard(GtkWidget *, GdkEvent *, GtkWindow *window) {
    const GtkTargetEntry text{const_cast<char *>("UTF8_STRING"), 0, 0};
    gtk_clipboard_set_with_data(
        gtk_clipboard_get(GDK_SELECTION_CLIPBOARD), &text, 1, handSlowly,
        [](GtkClipboard *, void *) {}, nullptr);
    gtk_window_iconify(window);
    say("taken");
    return FALSE;
}

// A window that came on the screen after the dialog would take the keys from it. The screen has the
// window when it has answered to what follows the first drawing.
gboolean sayWhenOnScreen() {
    static bool isDrawn = false;
    if (!std::exchange(isDrawn, true)) {
        g_idle_add(
            [](void *) -> gboolean {
                gdk_display_sync(gdk_display_get_default());
                say("ready");
                return G_SOURCE_REMOVE;
            },
            nullptr);
    }
    return FALSE;
}

} // namespace

int main(int argumentCount, char **arguments) {
    alarm(60);
    // When nobody listens any more.
    g_unix_fd_add(
        STDOUT_FILENO, G_IO_ERR, [](int, GIOCondition, void *) -> gboolean { std::_Exit(0); },
        nullptr);
    gtk_init(&argumentCount, &arguments);
    char **offered = arguments + 1;
    GtkWidget *window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    GtkWidget *area = gtk_event_box_new();
    gtk_container_add(GTK_CONTAINER(window), area);
    gtk_drag_source_set(area, GDK_BUTTON1_MASK, nullptr, 0, GDK_ACTION_COPY);
    offer(area, *offered);
    gtk_drag_dest_set(area, GTK_DEST_DEFAULT_MOTION, nullptr, 0, GDK_ACTION_MOVE);
    gtk_drag_dest_add_text_targets(area);
    g_signal_connect(area, "drag-motion", G_CALLBACK(accept), nullptr);
    g_signal_connect(area, "drag-drop", G_CALLBACK(+[]() -> gboolean {
                         say("dropped");
                         return TRUE;
                     }),
                     nullptr);
    g_signal_connect(area, "button-release-event", G_CALLBACK(takeClipboard), window);
    g_signal_connect(area, "drag-data-get", G_CALLBACK(hand), &offered);
    g_signal_connect(area, "drag-end", G_CALLBACK(goOn), &offered);
    g_signal_connect_after(area, "draw", G_CALLBACK(sayWhenOnScreen), nullptr);
    gtk_window_maximize(GTK_WINDOW(window));
    gtk_widget_show_all(window);
    gtk_main();
    return 0;
}
