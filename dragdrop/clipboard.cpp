// SPDX-License-Identifier: MIT

#include "dragdrop/clipboard.h"

#include "UnicodeText.h" // of the platform

#include <wx/clipbrd.h>

namespace columnimport {

void copyText(const wxString &text) {
    const wxClipboardLocker open;
    if (!!open) {
        wxTheClipboard->SetData(new UnicodeText(text));
    }
}

bool pasteText(wxString &text) {
    const wxClipboardLocker open;
    UnicodeText data;
    if (!open || !wxTheClipboard->GetData(data)) {
        return false;
    }
    text = data.GetText();
    return true;
}

} // namespace columnimport
