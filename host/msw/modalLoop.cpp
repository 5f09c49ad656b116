#include "host/modalLoop.h"

#include <wx/dialog.h>

namespace columnimport {

void resize(wxDialog &dialog, const wxSize &size) {
    dialog.SetSize(size);
}

int showModal(wxDialog &dialog) {
    return dialog.ShowModal();
}

} // namespace columnimport
