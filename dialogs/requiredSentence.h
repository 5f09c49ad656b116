// SPDX-License-Identifier: MIT

#pragma once

#include "names/SourceMatch.h"

#include <string>
#include <vector>

class wxString;

namespace columnimport {

/// What a person who presses OK is asked about columns that the host requires: one sentence on the
/// first of them without a match, or else on the first source column that stands at two application
/// columns. Empty if there is nothing to ask, as always where no column is required.
///
/// @param appColumns the application columns
/// @param required   whether the host requires them; may be shorter
/// @param matches    what stands at them; may be shorter
wxString requiredSentence(const std::vector<std::string> &appColumns,
                          const std::vector<bool> &required,
                          const std::vector<SourceMatch> &matches);

} // namespace columnimport
