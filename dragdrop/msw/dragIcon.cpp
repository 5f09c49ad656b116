#include "dragdrop/dragIcon.h"

namespace columnimport {

// It is a cursor, which goes by itself.
void discardIcon(wxDropSource &) {}

} // namespace columnimport
