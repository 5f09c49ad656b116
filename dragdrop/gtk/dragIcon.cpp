#include "dragdrop/dragIcon.h"

#include <gtk/gtk.h>
#include <wx/dnd.h>

namespace columnimport {

// The toolkit makes a window for it and leaves that behind.
void discardIcon(wxDropSource &drag) {
    if (drag.m_iconWindow != nullptr) {
        gtk_widget_destroy(drag.m_iconWindow);
        drag.m_iconWindow = nullptr;
    }
}

} // namespace columnimport
