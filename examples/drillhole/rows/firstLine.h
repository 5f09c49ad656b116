// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace drillhole {

/// The names that the dialog shows for a first line: cut at each delimiter, whether it stands
/// between quotes or not, trimmed, and then without double quotes. A run of blanks or tabs as the
/// delimiter cuts once.
///
///     namesShown("\"From, m\",To,", ',')  gives "From", "m", "To", ""
std::vector<std::string> namesShown(std::string_view line, char delimiter);

/// A file's first line, without its line end and without a byte-order mark. Throws a Fault if the
/// file can't be read.
std::string firstLineOf(const std::string &path);

} // namespace drillhole
