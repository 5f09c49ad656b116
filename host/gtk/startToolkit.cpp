// SPDX-License-Identifier: MIT

#include "host/startToolkit.h"

#include <vector>

#include <gtk/gtk.h>
#include <wx/init.h>

namespace columnimport {

// GTK itself is left to the toolkit to start, which keeps it from setting the host's locale.
bool hasDisplay() {
    return gdk_display_get_default() != nullptr || gdk_display_open(nullptr) != nullptr;
}

// Where a host has started GTK before, GTK warns that the toolkit's word about the locale comes too
// late. It is no fault of the host's: also one that has warnings end it goes on.
void startToolkit() {
    const GLogLevelFlags fatal =
        g_log_set_always_fatal(static_cast<GLogLevelFlags>(G_LOG_LEVEL_ERROR));
    static std::vector<const wxInitializer *> lasting;
    lasting.push_back(new wxInitializer);
    g_log_set_always_fatal(fatal);
}

} // namespace columnimport
