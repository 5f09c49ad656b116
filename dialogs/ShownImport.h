// SPDX-License-Identifier: MIT

#pragma once

#include "delimited/readHeader.h"
#include "dragdrop/RowMatch.h"
#include "names/ShownNames.h"

#include <string>
#include <vector>

namespace columnimport {

/// What both lists show, and all that they were filled from. A refresh replaces it as a whole; undo
/// restores the one before.
///
///     delimiter   comma, in the place of the semicolon that the dialog has now
///     names       BHID and Depth, in the place of "BHID,Depth"
///     rows        "hole: BHID", in the place of "hole: Not used"
struct ShownImport {
    char delimiter;
    bool useSavedMatches;
    std::vector<std::string> savedMatches;
    Header header; ///< without its columns, which are in `names`
    ShownNames names;
    std::vector<RowMatch> rows; ///< while the lists show another import; else the lists have them

    /// Whether undo may keep it. Names as large as a file would stay in memory.
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
