// SPDX-License-Identifier: MIT

#pragma once

#include "delimited/readHeader.h"
#include "dragdrop/ListCtrlSource.h"
#include "names/ShownNames.h"

#include <string>
#include <vector>

namespace columnimport {

/// What both lists show, and everything that they were filled from. A refresh replaces it as a
/// whole, and undo restores the former value.
struct ShownImport {
    char delimiter;
    bool useSavedMatches;
    std::vector<std::string> savedMatches;
    Header header; ///< without its columns, which are in `names`
    ShownNames names;
    std::vector<RowMatch> rows; ///< stale while shown: the match list has them

    /// Whether undo may keep it: names as large as a file would waste memory.
    bool isSmallEnoughToKeep() const {
        constexpr std::size_t most = 16U << 20U;
        std::size_t bytes = 0;
        for (const std::string &title : names.titles()) {
            bytes += title.size();
        }
        return bytes <= most;
    }
};

} // namespace columnimport
