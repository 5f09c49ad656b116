// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>

#include <wx/string.h>

namespace columnimport {

// From bytes to the text that is best to read, and from foreign text to bytes. Neither inverts the
// other: ShownNames knows the bytes that a shown text stands for.

/// The number of bytes up to which a name or a line is shown in full. A file of megabytes without
/// a line feed has its whole content for the name of its only column, and some list controls give
/// no more than 511 characters of an entry back.
inline constexpr std::size_t shownLength = 400;

/// The number of bytes of a line that decide what is shown of it: one more tells that it is long.
inline constexpr std::size_t tellingLength = shownLength + 1;

/// `bytes` as UTF-8 if they are that, else as the process's locale has them, else as Latin-1.
wxString decoded(const std::string &bytes);

/// `text` in the process's locale, or as UTF-8 where the locale has nothing for it.
std::string encoded(const wxString &text);

/// `text` with a visible stand-in for each control character and byte-order mark, and its head
/// alone if it is long.
///
///     readable(L"from\tto") == L"from\x2192to"
wxString readable(const wxString &text);

/// A name as a person reads it: decoded and readable.
wxString shownText(const std::string &bytes);

/// The lines of a file as a person reads them. Each line is read by itself, as a name is; tabs stay
/// tabs.
wxString previewText(const std::string &lines);

} // namespace columnimport
