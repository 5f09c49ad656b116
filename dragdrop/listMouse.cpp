// SPDX-License-Identifier: MIT

#include "dragdrop/listMouse.h"

#include "dragParts.h" // of the platform

#include <wx/dnd.h>
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

void ignoreOtherButtons(wxWindow &list) {
    for (const auto &press :
         {wxEVT_MIDDLE_DOWN, wxEVT_MIDDLE_DCLICK, wxEVT_RIGHT_DOWN, wxEVT_RIGHT_DCLICK}) {
        list.Bind(press, [](wxMouseEvent &) {});
    }
}

void setTip(wxWindow &list, const wxString &tip) {
    if (tip != list.GetToolTipText()) {
        list.SetToolTip(tip);
    }
}

void tipWhereCut(wxWindow &list, const wxString &name, int room) {
    setTip(list, list.GetTextExtent(name).x > room ? name : wxString());
}

bool movedWithButtonDown(const wxMouseEvent &move) {
    return wxGetMouseState().LeftIsDown() && move.LeftIsDown();
}

void dragText(wxWindow &list, const wxString &text, const wxString &shown) {
    const DelayedClose close(list);
    UnicodeText data(text);
    wxDropSource drag(&list);
    drag.SetData(data);
    runDrag(drag, list, shown);
}

} // namespace columnimport
