// SPDX-License-Identifier: MIT

#include "dragParts.h"

#include "names/nameText.h"

#include <algorithm>

#include <gtk/gtk.h>
#include <wx/dnd.h>

namespace columnimport {

wxDataFormat bestTextFormat(const std::vector<wxDataFormat> &offered) {
    for (const char *name : {"UTF8_STRING", "text/plain;charset=utf-8", "STRING", "text/plain"}) {
        const wxDataFormat format(gdk_atom_intern_static_string(name));
        if (std::find(offered.begin(), offered.end(), format) != offered.end()) {
            return format;
        }
    }
    return {};
}

wxDataFormat ForeignText::GetPreferredFormat(Direction) const {
    std::vector<wxDataFormat> offered;
    if (m_target.m_dragContext != nullptr) {
        for (const GList *format = gdk_drag_context_list_targets(m_target.m_dragContext);
             format != nullptr; format = format->next) {
            offered.emplace_back(static_cast<GdkAtom>(format->data));
        }
    }
    return bestTextFormat(offered);
}

bool ForeignText::SetData(const wxDataFormat &, std::size_t size, const void *data) {
    SetText(decoded(std::string(static_cast<const char *>(data), size)));
    return true;
}

} // namespace columnimport
