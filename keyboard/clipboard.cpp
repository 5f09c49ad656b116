// SPDX-License-Identifier: MIT

#include "keyboard/clipboard.h"

#include "dragParts.h" // of the platform

#include <wx/clipbrd.h>

namespace columnimport {

void copyText(const wxString &text) {
    const wxClipboardLocker open;
    if (!!open) {
        wxTheClipboard->SetData(new UnicodeText(text));
    }
}

} // namespace columnimport
