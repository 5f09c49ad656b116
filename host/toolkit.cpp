// SPDX-License-Identifier: MIT

#include "host/toolkit.h"

#include <wx/app.h>
#include <wx/module.h>
#include <wx/window.h>

namespace columnimport {

namespace {

class Application : public wxApp {
public:
    /// Passes an exception on to the host. On some platforms, the toolkit would ask the user what
    /// to do about it.
    bool OnExceptionInMainLoop() override { throw; }

    /// Ignores a failed assertion. The toolkit would ask the user, and block the host meanwhile.
    void OnAssertFailure(const wxChar *, int, const wxChar *, const wxChar *,
                         const wxChar *) override {}
};

} // namespace

// A replaced object is not deleted: the toolkit may still refer to it.
void setUpToolkit() {
    static const wxAppConsole *ours = nullptr;
    if (wxApp::GetInstance() != ours || !wxTopLevelWindows.empty() || !hasDisplay()) {
        return;
    }
    auto *application = new Application;
    wxApp::SetInstance(application);
    ours = application;
    startToolkit();
}

bool isToolkitSetUp() {
    return wxModule::AreInitialized();
}

} // namespace columnimport
