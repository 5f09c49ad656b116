// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

namespace columnimport {

/// The fields of the first line of the file `path` (UTF-8), cut at each byte `delimiter` and
/// stripped of all double quotes. Titles or data make no difference here.
///
/// Empty fields stay, as columns with an empty name. The list is empty if the file can't be opened,
/// has no bytes or begins with a blank line.
///
///     first line  "Hole ID", From (m),,Au   with ','  gives  Hole ID | From (m) | (empty) | Au
std::vector<std::string> readHeader(const std::string &path, char delimiter);

} // namespace columnimport
