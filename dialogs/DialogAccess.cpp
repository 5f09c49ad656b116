// SPDX-License-Identifier: MIT

#include "dialogs/DialogAccess.h"

#include "delimited/readHeader.h"
#include "dialogs/wxImportCSVDialog.h"
#include "dragdrop/ListCtrlSource.h"
#include "dragdrop/controls.h"

#include <utility>

namespace columnimport {

void DialogAccess::setOptions(wxImportCSVDialog &dialog, ImportOptions options) {
    dialog.m_options = std::make_unique<const ImportOptions>(std::move(options));
}

std::vector<SourceMatch> DialogAccess::matches(wxImportCSVDialog &dialog) {
    const auto &list = *findControl<ListCtrlSource>(dialog, wxImportCSVDialog::LISTBOX_MATCH);
    std::vector<SourceMatch> matches;
    matches.reserve(static_cast<std::size_t>(list.GetItemCount()));
    for (int row = 0; row < list.GetItemCount(); ++row) {
        matches.push_back(list.getMatch(row));
    }
    return matches;
}

std::vector<std::string> DialogAccess::takeSourceColumns(wxImportCSVDialog &dialog) {
    return std::move(dialog.m_fileSchema);
}

const Header &DialogAccess::header(const wxImportCSVDialog &dialog) {
    return *dialog.m_header;
}

} // namespace columnimport
