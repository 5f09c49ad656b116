// SPDX-License-Identifier: MIT

#include "dialogs/Scale.h"

#include <gtk/gtk.h>
#include <wx/window.h>

namespace columnimport {

namespace {

constexpr double usualResolution = 96; // dots an inch

double resolution(const wxWindow &window) {
    const double known = gdk_screen_get_resolution(gtk_widget_get_screen(window.GetHandle()));
    return known > 0 ? known : usualResolution;
}

} // namespace

Scale::Scale(const wxWindow &window) : m_ratio(resolution(window) / usualResolution) {}

} // namespace columnimport
