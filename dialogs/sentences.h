// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include <wx/string.h>

namespace columnimport {

struct Header;
struct RowMatch;

// The sentences of the status line; empty if there is nothing to report.

/// Why the first line of a file gives no columns or only one, and the delimiter that it contains
/// instead.
wxString headerSentence(const Header &header);

/// The label of the button that takes this delimiter.
wxString offerOf(char delimiter);

/// How many of `rows` are guesses, which are shown in italics.
wxString guessSentence(const std::vector<RowMatch> &rows);

/// The objection of OK to the matching: the first required column without a match, or else the
/// first source column matched to two application columns. Always empty if no column is required.
///
/// @param appColumns the application columns
/// @param required   whether the host requires each; entries at the end may be missing
/// @param rows       their rows; rows at the end may be missing
wxString requiredSentence(const std::vector<std::string> &appColumns,
                          const std::vector<bool> &required, const std::vector<RowMatch> &rows);

} // namespace columnimport
