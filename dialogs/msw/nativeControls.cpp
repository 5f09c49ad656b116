// SPDX-License-Identifier: MIT

#include "dialogs/nativeControls.h"

#include <wx/msw/private.h>
#include <wx/stattext.h>

namespace columnimport {

// The native control shows its character at any height.
void fitOneCharacter(wxTextCtrl &) {}

// By default the native control wraps lines; with this style it cuts them at its edge.
void cutLongLines(wxStaticText &text) {
    const LONG_PTR style = GetWindowLongPtrW(text.GetHWND(), GWL_STYLE);
    SetWindowLongPtrW(text.GetHWND(), GWL_STYLE, (style & ~SS_TYPEMASK) | SS_LEFTNOWORDWRAP);
}

} // namespace columnimport
