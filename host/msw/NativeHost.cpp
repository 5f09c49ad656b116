#include "host/NativeHost.h"

#include <wx/app.h>
#include <wx/dialog.h>
#include <wx/init.h>
#include <wx/msw/private.h>

namespace columnimport {

void setUpToolkit() {
    wxApp::SetInstance(new wxApp);
    new wxInitializer;
}

bool isToolkitSetUp() {
    return wxApp::GetInstance() != nullptr;
}

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

int showModal(wxDialog &dialog) {
    return dialog.ShowModal();
}

} // namespace columnimport
