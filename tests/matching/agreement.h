#pragma once

#include <string>
#include <vector>

namespace columnimport {

/// What the matcher answers otherwise than the reference, or against its own laws, for two lists of
/// names as written; empty if all is well. Scores are compared to the last bit, those of the names
/// that stand at the same place in both lists.
std::string disagreement(const std::vector<std::string> &app, const std::vector<std::string> &file);

} // namespace columnimport
