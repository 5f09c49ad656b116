#include "dialogs/NameText.h"

#include <wx/strconv.h>

namespace columnimport {

wxString toText(const std::string &bytes) {
    return wxString(bytes.data(), wxConvLibc, bytes.size());
}

std::string toBytes(const wxString &text) {
    return text.ToStdString(wxConvLibc);
}

} // namespace columnimport
