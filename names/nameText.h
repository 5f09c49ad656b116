// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>

#include <wx/string.h>

namespace columnimport {

// Conversions from bytes to readable text and from foreign text to bytes. They are not inverses:
// ShownNames knows the bytes behind a shown text.

/// The bytes after which a name or line is cut when shown. A file of megabytes without a line feed
/// can be a single name, and some list controls return at most 511 characters of an entry.
inline constexpr std::size_t shownLength = 400;

/// The bytes to read of a line: one more than are shown, to detect that it is cut.
inline constexpr std::size_t lengthToShow = shownLength + 1;

/// `bytes` decoded as UTF-8 if they are valid, else in the process's locale, else as Latin-1.
wxString decoded(const std::string &bytes);

/// `text` in the encoding of the process's locale, or in UTF-8 if the locale can't encode it.
std::string encoded(const wxString &text);

/// `text` with a visible stand-in for each control character and byte-order mark; a long text is
/// cut and ends in an ellipsis.
///
///     readable(L"from\tto") == L"from\x2192to"
wxString readable(const wxString &text);

/// A name to show: decoded and readable.
wxString shownText(const std::string &bytes);

/// The lines of a file to show. Each is decoded and cut like a name, but keeps its tabs.
wxString previewText(const std::string &lines);

} // namespace columnimport
