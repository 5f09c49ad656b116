// SPDX-License-Identifier: MIT

#include "host/ApplicationObject.h"

#include <wx/app.h>

namespace columnimport {

namespace {

class Application : public wxApp {
public:
    /// Lets an exception go on to the host. On some platforms the toolkit would ask the user what
    /// to do with it.
    bool OnExceptionInMainLoop() override { throw; }
};

} // namespace

// An object that was replaced is not deleted: the toolkit may still know it.
void renewApplicationObject() {
    static const wxAppConsole *ours = nullptr;
    if (wxApp::GetInstance() == ours) {
        auto *application = new Application;
        wxApp::SetInstance(application);
        ours = application;
    }
}

} // namespace columnimport
