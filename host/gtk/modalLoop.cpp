// SPDX-License-Identifier: MIT

#include "host/modalLoop.h"

#include "host/gtk/frameShadow.h"

#include <algorithm>
#include <exception>

#include <gtk/gtk.h>
#include <wx/dialog.h>

namespace columnimport {

namespace {

/// A gtk_main() of our own around the dialog's. If the toolkit entered its loop inside another one,
/// it calls gtk_main_quit() once too often on leaving: this loop takes that call, or the host's
/// would end.
class LoopAround {
public:
    explicit LoopAround(wxDialog &dialog)
        : m_dialog(dialog), m_due(g_idle_add_full(G_PRIORITY_HIGH, enter, this, nullptr)) {}

    // The host may have left the loop before it came to the dialog.
    ~LoopAround() {
        if (m_due != 0) {
            g_source_remove(m_due);
        }
    }
    LoopAround(const LoopAround &) = delete;
    LoopAround &operator=(const LoopAround &) = delete;

    int run() {
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

    // GLib's frames must not see an exception. The loop ends in every way out, also where the
    // dialog never ran a loop of its own; ending it twice is harmless.
    void showModal() {
        m_due = 0;
        const unsigned level = gtk_main_level();
        try {
            m_result = m_dialog.ShowModal();
        } catch (...) {
            // If the toolkit let the exception escape its own loop, neither loop can end normally.
            if (gtk_main_level() != level) {
                throw;
            }
            m_exception = std::current_exception();
        }
        gtk_main_quit();
    }

    wxDialog &m_dialog;
    unsigned m_due; // the call of `enter`, or 0
    int m_result = wxID_CANCEL;
    std::exception_ptr m_exception;
};

/// A length as a host asks for it, or the toolkit's default.
int clampedLength(int length) {
    // No frame is smaller than its title bar and borders, whose size is known only when it is
    // shown. X11 counts no further than 16 bits, and under Wayland the memory for all pixels of a
    // window is the program's own.
    constexpr int least = 100;
    constexpr int greatest = 8000;
    return length == wxDefaultCoord ? length : std::clamp(length, least, greatest);
}

} // namespace

void resize(wxDialog &dialog, const wxSize &size) {
    dialog.SetSize(clampedLength(size.x), clampedLength(size.y));
}

int showModal(wxDialog &dialog) {
    // On its first show the toolkit realises the window early to ask for the extents of its frame,
    // and loses the position.
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
