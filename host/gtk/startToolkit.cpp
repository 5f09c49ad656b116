// SPDX-License-Identifier: MIT

#include "host/toolkit.h"

#include <vector>

#include <gtk/gtk.h>
#include <wx/init.h>

namespace columnimport {

// Opens the display without starting GTK: the toolkit does that, and keeps GTK from setting the
// host's locale.
bool hasDisplay() {
    return gdk_display_get_default() != nullptr || gdk_display_open(nullptr) != nullptr;
}

// If the host has started GTK already, GTK warns that the toolkit's gtk_disable_setlocale() comes
// too late. A host that makes warnings fatal must not be aborted by it.
void startToolkit() {
    const GLogLevelFlags fatal =
        g_log_set_always_fatal(static_cast<GLogLevelFlags>(G_LOG_LEVEL_ERROR));
    static std::vector<const wxInitializer *> lasting;
    lasting.push_back(new wxInitializer);
    g_log_set_always_fatal(fatal);
}

} // namespace columnimport
