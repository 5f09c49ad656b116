#pragma once

#include <string>

#include <wx/string.h>

namespace columnimport {

/// A name as text, to be shown in a control. Bytes that the process's locale decodes become what
/// they stand for there; others are kept as well, so that `toBytes` gives every name back.
wxString toText(const std::string &bytes);

/// The bytes of a text that came from `toText`, exactly; of any other text, its bytes in the
/// process's locale, or as UTF-8 where the locale has no bytes for it.
std::string toBytes(const wxString &text);

} // namespace columnimport
