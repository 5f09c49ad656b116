// SPDX-License-Identifier: MIT

#include "dialogs/ImportDetails.h"

#include "dialogs/wxImportCSVDialog.h"
#include "dragdrop/ListCtrlSource.h"
#include "dragdrop/controls.h"

#include <utility>

namespace columnimport {

ImportDetails &ImportDetails::of(wxImportCSVDialog &dialog) {
    return *dialog.m_details;
}

std::vector<std::string> ImportDetails::takeSourceColumns(wxImportCSVDialog &dialog) {
    return std::move(dialog.m_fileSchema);
}

std::vector<SourceMatch> ImportDetails::matches(wxImportCSVDialog &dialog) {
    const auto &list = *findControl<ListCtrlSource>(dialog, wxImportCSVDialog::LISTBOX_MATCH);
    std::vector<SourceMatch> matches;
    matches.reserve(static_cast<std::size_t>(list.GetItemCount()));
    for (int row = 0; row < list.GetItemCount(); ++row) {
        SourceMatch match = list.getMatch(row);
        const ColumnMatch &opening = of(dialog).opening[static_cast<std::size_t>(row)];
        if (match.position >= 0 && match.position == opening.position) {
            match.origin = opening.origin;
            match.score = opening.score;
        } else if (!match.isNone()) {
            match.origin = match.position < 0 ? MatchOrigin::foreign : MatchOrigin::byHand;
        }
        matches.push_back(std::move(match));
    }
    return matches;
}

} // namespace columnimport
