// SPDX-License-Identifier: MIT

#include "dialogs/nativeControls.h"

#include <wx/msw/private.h>
#include <wx/stattext.h>

namespace columnimport {

// The native control shows its character at any height.
void fitOneCharacter(wxTextCtrl &) {}

// The native control wraps lines unless it is told that each stays one, and cuts it at its edge.
void cutLongLines(wxStaticText &text) {
    const LONG_PTR style = GetWindowLongPtrW(text.GetHWND(), GWL_STYLE);
    SetWindowLongPtrW(text.GetHWND(), GWL_STYLE, (style & ~SS_TYPEMASK) | SS_LEFTNOWORDWRAP);
}

} // namespace columnimport
