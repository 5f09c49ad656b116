// SPDX-License-Identifier: MIT

#include "dialogs/arrowBitmap.h"

#include "dialogs/arrow.xpm"

#include <wx/bitmap.h>
#include <wx/image.h>
#include <wx/window.h>

namespace columnimport {

// Uses an alpha channel, since the toolkit leaks one picture of a masked bitmap for each control
// that shows it.
wxBitmap arrowBitmap(const wxWindow &window, const wxSize &size) {
    wxImage arrow(arrow_xpm);
    arrow.InitAlpha();
    const wxColour colour = window.GetForegroundColour();
    arrow.SetRGB(wxRect(arrow.GetSize()), colour.Red(), colour.Green(), colour.Blue());
    const double pixels = window.GetContentScaleFactor(); // of the screen, for each of the window
    const wxSize onScreen = size * pixels;
    if (onScreen != arrow.GetSize()) {
        arrow.Rescale(onScreen.x, onScreen.y, wxIMAGE_QUALITY_HIGH);
    }
    return wxBitmap(arrow, wxBITMAP_SCREEN_DEPTH, pixels);
}

} // namespace columnimport
