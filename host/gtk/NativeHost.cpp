#include "host/NativeHost.h"

#include <vector>

#include <gtk/gtk.h>
#include <wx/app.h>
#include <wx/dialog.h>
#include <wx/init.h>

namespace columnimport {

namespace {

// GTK itself is left to the toolkit to start, which keeps it from setting the host's locale.
bool hasDisplay() {
    return gdk_display_get_default() != nullptr || gdk_display_open(nullptr) != nullptr;
}

struct ModalCall {
    wxDialog &dialog;
    int result;
};

gboolean enterModalLoop(void *data) {
    auto &call = *static_cast<ModalCall *>(data);
    call.result = call.dialog.ShowModal();
    return G_SOURCE_REMOVE;
}

} // namespace

// Both objects are for the life of the process: the toolkit is never shut down.
void setUpToolkit() {
    if (hasDisplay()) {
        wxApp::SetInstance(new wxApp);
        static std::vector<const wxInitializer *> lasting;
        lasting.push_back(new wxInitializer);
    }
}

bool isToolkitSetUp() {
    return wxApp::GetInstance() != nullptr;
}

HostWindow ownerOf(HostWindow hostWindow) {
    if (hostWindow == nullptr) {
        return nullptr;
    }
    GtkWidget *topLevel = gtk_widget_get_toplevel(hostWindow);
    return GTK_IS_WINDOW(topLevel) ? topLevel : nullptr;
}

// The reference keeps the widget's memory for the run, should the host destroy its window
// meanwhile.
void attach(wxWindow &standIn, HostWindow hostWindow) {
    standIn.m_widget = GTK_WIDGET(g_object_ref(hostWindow));
    GtkWindow *window = GTK_WINDOW(hostWindow);
    gtk_window_get_position(window, &standIn.m_x, &standIn.m_y);
    gtk_window_get_size(window, &standIn.m_width, &standIn.m_height);
}

void detach(wxWindow &standIn) {
    g_clear_object(&standIn.m_widget);
}

int showModal(wxDialog &dialog) {
    // On its first show the toolkit realises the window early, to ask for the extents of its frame,
    // and the position that it was given gets lost on the way.
    const wxPoint position = dialog.GetPosition();
    dialog.Bind(wxEVT_SHOW, [&dialog, position](wxShowEvent &event) {
        if (event.IsShown()) {
            gtk_window_move(GTK_WINDOW(dialog.GetHandle()), position.x, position.y);
        }
        event.Skip();
    });

    // On leaving its loop the toolkit calls gtk_main_quit() once more than it called gtk_main() if
    // it was entered inside one. A gtk_main() of our own around it takes that call, or the host's
    // would return.
    if (gtk_main_level() == 0) {
        return dialog.ShowModal();
    }
    ModalCall call{dialog, wxID_CANCEL};
    g_idle_add_full(G_PRIORITY_HIGH, enterModalLoop, &call, nullptr);
    gtk_main();
    return call.result;
}

} // namespace columnimport
