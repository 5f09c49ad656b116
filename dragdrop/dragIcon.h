#pragma once

class wxDropSource;

namespace columnimport {

/// Takes away what `drag`, which has ended, showed under the pointer.
void discardIcon(wxDropSource &drag);

} // namespace columnimport
