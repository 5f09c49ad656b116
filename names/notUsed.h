// SPDX-License-Identifier: MIT

#pragma once

namespace columnimport {

/// The match text of an application column that has no file column.
inline constexpr const char *notUsed = "Not used";

} // namespace columnimport
