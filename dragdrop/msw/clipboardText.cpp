// SPDX-License-Identifier: MIT

#include "dragdrop/clipboard.h"

#include <wx/clipbrd.h>
#include <wx/dataobj.h>

namespace columnimport {

void requestClipboardText(const TextAnswer &answer) {
    std::optional<wxString> text;
    {
        wxTextDataObject data;
        const wxClipboardLocker open;
        if (!!open && wxTheClipboard->GetData(data)) {
            text = data.GetText();
        }
    }
    answer(text);
}

} // namespace columnimport
