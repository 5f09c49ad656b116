// SPDX-License-Identifier: MIT

#include "dragdrop/listBox.h"

#include <gtk/gtk.h>
#include <wx/listbox.h>

namespace columnimport {

namespace {

gboolean passReturnOn(GtkWidget *, GdkEvent *event, void *list) {
    const bool isReturn = event->type == GDK_KEY_PRESS && (event->key.keyval == GDK_KEY_Return ||
                                                           event->key.keyval == GDK_KEY_KP_Enter ||
                                                           event->key.keyval == GDK_KEY_ISO_Enter);
    if (!isReturn) {
        return FALSE;
    }
    wxKeyEvent key(wxEVT_CHAR_HOOK);
    key.m_keyCode = WXK_RETURN;
    key.SetControlDown((event->key.state & GDK_CONTROL_MASK) != 0);
    key.SetEventObject(static_cast<wxListBox *>(list));
    return static_cast<wxListBox *>(list)->HandleWindowEvent(key) ? TRUE : FALSE;
}

} // namespace

// The toolkit handles Return before it sends any key event.
void forwardReturn(wxListBox &list) {
    g_signal_connect(list.m_focusWidget, "event", G_CALLBACK(passReturnOn), &list);
}

void goToEntry(wxListBox &list, int row) {
    list.SetSelection(row);
    GtkTreePath *path = gtk_tree_path_new_from_indices(row, -1);
    list.GTKDisableEvents();
    gtk_tree_view_set_cursor(GTK_TREE_VIEW(list.m_focusWidget), path, nullptr, FALSE);
    list.GTKEnableEvents();
    gtk_tree_path_free(path);
}

} // namespace columnimport
