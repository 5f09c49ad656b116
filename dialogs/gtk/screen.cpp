// SPDX-License-Identifier: MIT

#include "dialogs/screen.h"

#include <algorithm>

#include <gdk/gdkwayland.h>
#include <gtk/gtk.h>
#include <wx/display.h>
#include <wx/window.h>

namespace columnimport {

namespace {

constexpr double usualResolution = 96; // dots per inch

double resolution(const wxWindow &window) {
    const double known = gdk_screen_get_resolution(gtk_widget_get_screen(window.GetHandle()));
    return known > 0 ? known : usualResolution;
}

} // namespace

Scale::Scale(const wxWindow &window) : m_ratio(resolution(window) / usualResolution) {}

wxSize frameRoom(const wxWindow &dialog) {
    const wxPoint place = dialog.GetPosition();
    const int screen = wxDisplay::GetFromPoint(place);
    const wxRect area =
        wxDisplay(static_cast<unsigned>(screen != wxNOT_FOUND ? screen : 0)).GetClientArea();
    if (GDK_IS_WAYLAND_DISPLAY(gdk_display_get_default())) {
        return area.GetSize(); // the compositor places the frame
    }
    return {area.x + area.width - std::max(place.x, area.x),
            area.y + area.height - std::max(place.y, area.y)};
}

// A frame's borders are unknown before it is shown; title bars are 20 to 40 pixels high.
wxSize contentRoom(const wxWindow &dialog) {
    return frameRoom(dialog) - Scale(dialog)(wxSize(10, 40));
}

} // namespace columnimport
