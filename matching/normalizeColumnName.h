// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace columnimport {

/// The form in which two column names are compared: lower case, every unit written one way, and
/// every byte but a to z and 0 to 9 an underscore.
///
/// A percent sign becomes "_pct" and absorbs one blank or underscore before it; "g/t"
/// becomes "gt". The result holds only a to z, 0 to 9 and '_', is empty only for an empty name,
/// and normalising it again changes nothing. No encoding is assumed, and the process's locale
/// makes no difference: A to Z alone have small letters, and each byte of 0x80 or above gives one
/// underscore.
///
///     normalizeColumnName("Cu %")     == "cu_pct"
///     normalizeColumnName("Au (g/t)") == "au__gt_"
///     normalizeColumnName("Hole-ID")  == "hole_id"
std::string normalizeColumnName(std::string name);

/// The text with every occurrence of `search` replaced, from left to right; replacements are not
/// searched again. `search` must not be empty.
///
///     replaceAll("%_%", "_%", "_pct") == "%_pct"
std::string replaceAll(std::string text, std::string search, std::string replacement);

} // namespace columnimport
