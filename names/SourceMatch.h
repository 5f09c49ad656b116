// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "names/ColumnMatch.h"

namespace columnimport {

/// The match of an application column: a column of the source, or a name from another program
/// without a position, or nothing.
struct SourceMatch : ColumnMatch {
    std::string name;

    bool isNone() const { return position < 0 && name.empty(); }
};

} // namespace columnimport
