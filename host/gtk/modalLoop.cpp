// SPDX-License-Identifier: MIT

#include "host/modalLoop.h"

#include "host/gtk/frameShadow.h"

#include <algorithm>
#include <exception>

#include <gtk/gtk.h>
#include <wx/dialog.h>

namespace columnimport {

namespace {

/// A gtk_main() of our own around the dialog's. On leaving its loop the toolkit calls
/// gtk_main_quit() once more than it called gtk_main() if it was entered inside one: this loop
/// takes that call, or the host's would end.
class LoopAround {
public:
    explicit LoopAround(wxDialog &dialog) : m_dialog(dialog) {}

    int run() {
        g_idle_add_full(G_PRIORITY_HIGH, enter, this, nullptr);
        gtk_main();
        if (m_exception) {
            std::rethrow_exception(m_exception);
        }
        return m_result;
    }

private:
    static gboolean enter(void *self) {
        static_cast<LoopAround *>(self)->showModal();
        return G_SOURCE_REMOVE;
    }

    // No exception is to cross the frames of GLib. The loop ends in every way out, also where the
    // dialog never ran a loop of its own; ending it twice is the same as once.
    void showModal() {
        const unsigned level = gtk_main_level();
        try {
            m_result = m_dialog.ShowModal();
        } catch (...) {
            // Where the toolkit itself let it cross the dialog's loop, that one can't be left any
            // more, nor this one by its end.
            if (gtk_main_level() != level) {
                throw;
            }
            m_exception = std::current_exception();
        }
        gtk_main_quit();
    }

    wxDialog &m_dialog;
    int m_result = wxID_CANCEL;
    std::exception_ptr m_exception;
};

} // namespace

void resize(wxDialog &dialog, const wxSize &size) {
    // No frame is smaller than its title bar and borders, and how large these are is known only
    // when it is shown. X11 counts no further than 16 bits, and under Wayland the memory for all
    // pixels of a window is the program's own.
    constexpr int leastSize = 100;
    constexpr int greatestSize = 8000;
    dialog.SetSize(std::clamp(size.x, leastSize, greatestSize),
                   std::clamp(size.y, leastSize, greatestSize));
}

int showModal(wxDialog &dialog) {
    // On its first show the toolkit realises the window early, to ask for the extents of its frame,
    // and the position that it was given gets lost on the way.
    const wxPoint position = dialog.GetPosition();
    const wxSize size = dialog.GetSize();
    dialog.Bind(wxEVT_SHOW, [&dialog, position, size](wxShowEvent &event) {
        if (event.IsShown()) {
            dialog.SetSize(size + frameShadow(dialog));
            gtk_window_move(GTK_WINDOW(dialog.GetHandle()), position.x, position.y);
        }
        event.Skip();
    });
    return gtk_main_level() == 0 ? dialog.ShowModal() : LoopAround(dialog).run();
}

bool hasWindow(const wxDialog &) {
    return true;
}

} // namespace columnimport
