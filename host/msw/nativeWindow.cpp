#include "host/nativeWindow.h"

#include <wx/msw/private.h>
#include <wx/window.h>

namespace columnimport {

HostWindow ownerOf(HostWindow hostWindow) {
    return hostWindow;
}

void attach(wxWindow &standIn, HostWindow hostWindow) {
    standIn.SetHWND(hostWindow);
    standIn.AdoptAttributesFromHWND();
}

void detach(wxWindow &standIn) {
    standIn.SetHWND(nullptr);
}

} // namespace columnimport
