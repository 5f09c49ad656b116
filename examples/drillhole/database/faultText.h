// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace drillhole {

/// What to do about a fault that a database reports in these words, followed by the words.
std::string faultText(const std::string &words);

} // namespace drillhole
