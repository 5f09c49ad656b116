// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "names/ColumnMatch.h"

namespace columnimport {

/// What stands at an application column: a column of the source, or a name that was dragged in from
/// another program and has no position, or nothing.
struct SourceMatch : ColumnMatch {
    std::string name;

    bool isNone() const { return position < 0 && name.empty(); }
};

} // namespace columnimport
