// SPDX-License-Identifier: MIT

#include "host/toolkit.h"

#include "QuietStart.h"
#include "host/ApplicationObject.h"

#include <vector>

#include <gtk/gtk.h>
#include <wx/app.h>
#include <wx/init.h>

namespace columnimport {

namespace {

// GTK itself is left to the toolkit to start, which keeps it from setting the host's locale.
bool hasDisplay() {
    return gdk_display_get_default() != nullptr || gdk_display_open(nullptr) != nullptr;
}

} // namespace

// The initializer is for the life of the process: the toolkit is never shut down.
void setUpToolkit() {
    if (hasDisplay()) {
        const QuietStart quiet;
        renewApplicationObject();
        static std::vector<const wxInitializer *> lasting;
        lasting.push_back(new wxInitializer);
    }
}

bool isToolkitSetUp() {
    return wxApp::GetInstance() != nullptr;
}

} // namespace columnimport
