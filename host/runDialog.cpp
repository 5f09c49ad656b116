// SPDX-License-Identifier: MIT

#include "host/runDialog.h"

#include "dialogs/Scale.h"
#include "dialogs/screenRoom.h"
#include "dialogs/wxImportCSVDialog.h"
#include "host/modalLoop.h"

#include <wx/gdicmn.h>

namespace columnimport {

namespace {

constexpr int greatestSize = 32000; // no screen has as many pixels

/// The size of the frame for a host that asks for `size`: that very size where the layout has its
/// usual scale. Elsewhere a host can't know what to ask for, and the frame ends where the screen
/// ends.
wxSize frameSize(const wxWindow &dialog, wxSize size) {
    const Scale scale(dialog);
    if (scale.isUsual()) {
        return size;
    }
    size.DecTo(wxSize(greatestSize, greatestSize));
    size = scale(size);
    size.DecTo(frameRoom());
    return size;
}

} // namespace

bool runDialog(wxImportCSVDialog &dialog, const wxSize &size) {
    dialog.create();
    // The fitted size is only a default: the host may ask for less.
    dialog.SetMinSize(wxDefaultSize);
    resize(dialog, frameSize(dialog, size));
    dialog.SetPosition(framePlace);
    return showModal(dialog) == wxID_OK;
}

} // namespace columnimport
