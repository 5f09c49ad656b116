// SPDX-License-Identifier: MIT

#include "dragdrop/RowMatch.h"

#include "languages/translated.h"

namespace columnimport {

wxString rowsText(const wxString &first, std::size_t count) {
    if (count == 1) {
        return first;
    }
    const auto rows = static_cast<unsigned>(count);
    return wxString::Format(translated("%s (%u row)", "%s (%u rows)", rows), first, rows);
}

} // namespace columnimport
