// SPDX-License-Identifier: MIT

#include "dragdrop/dragText.h"

#include "dragParts.h" // of the platform

#include <wx/dnd.h>
#include <wx/event.h>
#include <wx/utils.h>
#include <wx/window.h>

namespace columnimport {

namespace {

/// Keeps the window from closing while this object lives. A window that closes during a drag never
/// answers the drop, and the drag would wait minutes for it.
class DelayedClose {
public:
    explicit DelayedClose(wxWindow &inside) : m_window(*wxGetTopLevelParent(&inside)) {
        m_window.Bind(wxEVT_CLOSE_WINDOW, &DelayedClose::onClose, this);
    }

    ~DelayedClose() {
        m_window.Unbind(wxEVT_CLOSE_WINDOW, &DelayedClose::onClose, this);
        if (m_isWanted) {
            m_window.Close();
        }
    }

    DelayedClose(const DelayedClose &) = delete;
    DelayedClose &operator=(const DelayedClose &) = delete;

private:
    void onClose(wxCloseEvent &event) {
        m_isWanted = true;
        if (event.CanVeto()) {
            event.Veto();
        }
    }

    wxWindow &m_window;
    bool m_isWanted = false;
};

} // namespace

bool movedWithButtonDown(const wxMouseEvent &move) {
    return wxGetMouseState().LeftIsDown() && move.LeftIsDown();
}

void dragText(wxWindow &source, const wxString &text, const wxString &shown) {
    const DelayedClose close(source);
    UnicodeText data(text);
    wxDropSource drag(&source);
    drag.SetData(data);
    runDrag(drag, source, shown);
}

} // namespace columnimport
