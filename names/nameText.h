// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>

#include <wx/string.h>

namespace columnimport {

// Conversions from bytes to readable text and from foreign text to bytes. They are no inverses:
// ShownNames knows the bytes that a shown text stands for.

/// A name or line of more bytes is shown cut. A file of megabytes without a line feed can be a
/// single name, and some list controls return at most 511 characters of an entry.
inline constexpr std::size_t shownLength = 400;

/// The bytes of a line that it takes to show it: one more than is shown tells whether it is cut.
inline constexpr std::size_t lengthToShow = shownLength + 1;

/// `bytes` decoded as UTF-8 if they are valid, else in the process's locale, else as Latin-1.
wxString decoded(const std::string &bytes);

/// `text` in the encoding of the process's locale, or in UTF-8 if the locale can't encode it.
std::string encoded(const wxString &text);

/// `text` with a visible stand-in for each control character and byte-order mark; of a long text,
/// the head and an ellipsis.
///
///     readable(L"from\tto") == L"from\x2192to"
wxString readable(const wxString &text);

/// A name as a person reads it: decoded and readable.
wxString shownText(const std::string &bytes);

/// The lines of a file as a person reads them. Each is decoded and cut like a name, but keeps its
/// tabs.
wxString previewText(const std::string &lines);

} // namespace columnimport
