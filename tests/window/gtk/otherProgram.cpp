// SPDX-License-Identifier: MIT

// Another program on the screen, from which text is dragged: its window offers one of its arguments
// after the other. It says when it is ready and when a drag is over, and ends after the last one.

#include <cstring>
#include <iostream>

#include <gtk/gtk.h>
#include <unistd.h>

namespace {

void say(const char *what) {
    std::cout << what << std::endl;
}

void hand(GtkWidget *, GdkDragContext *, GtkSelectionData *data, guint, guint, char ***offered) {
    gtk_selection_data_set_text(data, **offered, static_cast<int>(std::strlen(**offered)));
}

void goOn(GtkWidget *, GdkDragContext *, char ***offered) {
    say("over");
    if (*++*offered == nullptr) {
        gtk_main_quit();
    }
}

} // namespace

int main(int argumentCount, char **arguments) {
    // Should nobody drag.
    alarm(60);
    gtk_init(&argumentCount, &arguments);
    char **offered = arguments + 1;
    GtkWidget *window = gtk_window_new(GTK_WINDOW_POPUP);
    GtkWidget *area = gtk_event_box_new();
    gtk_container_add(GTK_CONTAINER(window), area);
    gtk_drag_source_set(area, GDK_BUTTON1_MASK, nullptr, 0, GDK_ACTION_COPY);
    gtk_drag_source_add_text_targets(area);
    g_signal_connect(area, "drag-data-get", G_CALLBACK(hand), &offered);
    g_signal_connect(area, "drag-end", G_CALLBACK(goOn), &offered);
    g_signal_connect_after(window, "map-event", G_CALLBACK(+[]() -> gboolean {
                               say("ready");
                               return FALSE;
                           }),
                           nullptr);
    gtk_window_move(GTK_WINDOW(window), 1200, 200);
    gtk_window_resize(GTK_WINDOW(window), 200, 200);
    gtk_widget_show_all(window);
    gtk_main();
    return 0;
}
