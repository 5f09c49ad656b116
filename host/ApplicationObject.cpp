// SPDX-License-Identifier: MIT

#include "host/ApplicationObject.h"

#include <wx/app.h>

namespace columnimport {

// An object that was replaced is not deleted: the toolkit may still know it.
void renewApplicationObject() {
    static const wxAppConsole *ours = nullptr;
    if (wxApp::GetInstance() == ours) {
        auto *application = new wxApp;
        wxApp::SetInstance(application);
        ours = application;
    }
}

} // namespace columnimport
