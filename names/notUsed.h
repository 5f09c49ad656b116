// SPDX-License-Identifier: MIT

#pragma once

namespace columnimport {

/// The match text of an application column without a file column.
inline constexpr const char *notUsed = "Not used";

} // namespace columnimport
