// Another program on the screen, from which text is dragged: its window offers what it reads from
// standard input, and it tells on standard output what becomes of the drag.

#include <iostream>
#include <iterator>
#include <string>

#include <gtk/gtk.h>

namespace {

std::string offered;

void say(const char *what) {
    std::cout << what << std::endl;
}

void hand(GtkWidget *, GdkDragContext *, GtkSelectionData *data, guint, guint) {
    gtk_selection_data_set_text(data, offered.data(), static_cast<int>(offered.size()));
}

void watch(GtkWidget *, GdkDragContext *context) {
    g_signal_connect(context, "action-changed", G_CALLBACK(+[](GdkDragContext *, int action) {
                         say(action != 0 ? "accepted" : "refused");
                     }),
                     nullptr);
}

} // namespace

int main(int argumentCount, char **arguments) {
    gtk_init(&argumentCount, &arguments);
    offered.assign(std::istreambuf_iterator<char>(std::cin), {});
    GtkWidget *window = gtk_window_new(GTK_WINDOW_POPUP);
    GtkWidget *area = gtk_event_box_new();
    gtk_container_add(GTK_CONTAINER(window), area);
    gtk_drag_source_set(area, GDK_BUTTON1_MASK, nullptr, 0, GDK_ACTION_COPY);
    gtk_drag_source_add_text_targets(area);
    g_signal_connect(area, "drag-data-get", G_CALLBACK(hand), nullptr);
    g_signal_connect(area, "drag-begin", G_CALLBACK(watch), nullptr);
    g_signal_connect(area, "drag-end", G_CALLBACK(+[] { say("over"); }), nullptr);
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
