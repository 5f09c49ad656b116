#pragma once

#include <cstddef>
#include <string>

#include <wx/string.h>

namespace columnimport {

/// Names too long for a control to lay out: a file of megabytes without a line feed has its whole
/// content for the name of its only column. The controls hold their head with a mark, private
/// characters behind all that can be seen; the bytes are kept here, each name once, as long as the
/// dialog lives: there is one at a time.
namespace LongNames {

/// The number of bytes up to which a name is shown in full.
inline constexpr std::size_t shownLength = 1000;

/// The mark to put behind the head of `bytes`, which are kept.
wxString keep(const std::string &bytes);

/// Whether `text` ends as a mark does, kept or not.
bool isMarked(const wxString &text);

/// The bytes whose mark `text` ends with, or null.
const std::string *find(const wxString &text);

void forgetAll();

} // namespace LongNames

} // namespace columnimport
