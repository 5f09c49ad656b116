// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>

namespace drillhole {

/// The delimiter that the dialog should open with: the one of comma, semicolon, tab, blank and bar
/// that cuts the first ten rows of the file most evenly, that is, most of them into as many fields
/// as the first. Of two that cut as evenly, the one that gives more fields.
///
/// @param lastUsed  comes first if it cuts as evenly as the best
///
/// A file that none of them cuts opens with what was used last, or else with the comma. Throws a
/// Fault if the file can't be read.
char startDelimiter(const std::string &path, std::optional<char> lastUsed);

} // namespace drillhole
