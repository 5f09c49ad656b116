#include "host/runDialog.h"

#include "dialogs/wxImportCSVDialog.h"
#include "host/modalLoop.h"

namespace columnimport {

bool runDialog(wxImportCSVDialog &dialog, const wxSize &size) {
    dialog.create();
    // The fitted size is only a default: the host may ask for less.
    dialog.SetMinSize(wxDefaultSize);
    resize(dialog, size);
    dialog.SetPosition(wxPoint(100, 100));
    return showModal(dialog) == wxID_OK;
}

} // namespace columnimport
