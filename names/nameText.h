// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>

#include <wx/string.h>

namespace columnimport {

// From bytes to a readable text, and from foreign text to bytes. Neither inverts the other:
// ShownNames knows the bytes that a shown text stands for.

/// The number of bytes up to which a name or a line is shown in full. The only column of a file
/// without a line feed may have megabytes of name, and some list controls return at most 511
/// characters of an entry.
inline constexpr std::size_t shownLength = 400;

/// The number of bytes of a line that its shown text depends on: one more than is shown.
inline constexpr std::size_t tellingLength = shownLength + 1;

/// `bytes` as UTF-8 if they are valid, else in the process's locale, else as Latin-1.
wxString decoded(const std::string &bytes);

/// `text` in the process's locale, or as UTF-8 if the locale lacks a character.
std::string encoded(const wxString &text);

/// `text` with visible stand-ins for control characters and byte-order marks, cut if it is long.
///
///     readable(L"from\tto") == L"from\x2192to"
wxString readable(const wxString &text);

/// A name as a person reads it: decoded and readable.
wxString shownText(const std::string &bytes);

/// The lines of a file as a person reads them. Each line is decoded by itself; tabs stay tabs.
wxString previewText(const std::string &lines);

} // namespace columnimport
