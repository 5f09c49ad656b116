// SPDX-License-Identifier: MIT

#include "keyboard/findTyped.h"

#include <algorithm>

#include <wx/arrstr.h>

namespace columnimport {

int findTyped(const wxArrayString &names, const wxString &typed, int selected) {
    const wxString wanted = typed.Lower();
    const std::size_t count = names.size();
    const int from = std::max(selected + (typed.length() == 1 ? 1 : 0), 0);
    int containing = wxNOT_FOUND;
    for (std::size_t step = 0; step < count; ++step) {
        const std::size_t row = (static_cast<std::size_t>(from) + step) % count;
        const std::size_t place = names[row].Lower().find(wanted);
        if (place == 0) {
            return static_cast<int>(row);
        }
        if (place != wxString::npos && containing == wxNOT_FOUND) {
            containing = static_cast<int>(row);
        }
    }
    return containing;
}

} // namespace columnimport
