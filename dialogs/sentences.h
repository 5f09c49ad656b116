// SPDX-License-Identifier: MIT

#pragma once

#include "dragdrop/RowMatch.h"

#include <string>
#include <vector>

#include <wx/string.h>

namespace columnimport {

struct Header;

// The sentences of the status line. Each is empty if there is nothing to report.

/// Why the first line of a file gives no columns or only one, and which delimiter it contains
/// instead.
wxString headerSentence(const Header &header);

/// The label of the button that takes this delimiter.
wxString offerOf(char delimiter);

/// How many of `rows` are guesses, and how they look.
wxString guessSentence(const std::vector<RowMatch> &rows);

/// The question that OK asks about required columns: the first one without a match, or else the
/// first source column that is matched to two application columns. Always empty if no column is
/// required.
///
/// @param appColumns the application columns
/// @param required   whether the host requires them; may be shorter
/// @param rows       their rows; may be fewer
wxString requiredSentence(const std::vector<std::string> &appColumns,
                          const std::vector<bool> &required, const std::vector<RowMatch> &rows);

} // namespace columnimport
