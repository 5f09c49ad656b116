// SPDX-License-Identifier: MIT

#include "dragdrop/dragText.h"

#include "DragLabel.h"   // of the platform
#include "IgnoredDrag.h" // of the platform
#include "UnicodeText.h" // of the platform

#include <wx/dnd.h>
#include <wx/event.h>
#include <wx/utils.h>
#include <wx/window.h>

namespace columnimport {

namespace {

/// Puts a closing of the window off while it lives. A window that closes under a drag never answers
/// the drop, and the drag would wait minutes for it.
class ClosingPutOff {
public:
    explicit ClosingPutOff(wxWindow &inside) : m_window(*wxGetTopLevelParent(&inside)) {
        m_window.Bind(wxEVT_CLOSE_WINDOW, &ClosingPutOff::onClose, this);
    }

    ~ClosingPutOff() {
        m_window.Unbind(wxEVT_CLOSE_WINDOW, &ClosingPutOff::onClose, this);
        if (m_isWanted) {
            m_window.Close();
        }
    }

    ClosingPutOff(const ClosingPutOff &) = delete;
    ClosingPutOff &operator=(const ClosingPutOff &) = delete;

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
    const ClosingPutOff closing(source);
    UnicodeText data(text);
    wxDropSource drag(&source);
    drag.SetData(data);
    const IgnoredDrag end(drag);
    const DragLabel label(drag, source, shown);
    drag.DoDragDrop(wxDrag_AllowMove);
}

} // namespace columnimport
