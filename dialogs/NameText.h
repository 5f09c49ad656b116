#pragma once

#include <string>

#include <wx/string.h>

namespace columnimport {

// The two places where bytes become text and text becomes bytes again. They invert each other in
// every locale: for any bytes without a zero, toBytes(toText(bytes)) == bytes.

/// A name as text, to be shown in a control.
///
/// Bytes that the process's locale decodes become what they stand for there. Others are read as
/// UTF-8, with a private character for each byte that is no UTF-8 either, so that none is lost. Of
/// a name that is longer than a list can show, the head stands for the whole.
wxString toText(const std::string &bytes);

/// The bytes of a text that came from `toText`, exactly; of any other text, its bytes in the
/// process's locale, or as UTF-8 where the locale has none for it.
std::string toBytes(const wxString &text);

/// Text to be read by a person and by nothing else: bytes that are neither of the locale nor UTF-8
/// are taken for Latin-1, and a line that is longer than can be shown is cut.
wxString toPreviewText(const std::string &bytes);

} // namespace columnimport
