// SPDX-License-Identifier: MIT

#include "dialogs/requiredSentence.h"

#include "languages/translated.h"
#include "names/nameText.h"

#include <algorithm>
#include <unordered_map>

#include <wx/string.h>

namespace columnimport {

wxString requiredSentence(const std::vector<std::string> &appColumns,
                          const std::vector<bool> &required,
                          const std::vector<SourceMatch> &matches) {
    if (std::find(required.begin(), required.end(), true) == required.end()) {
        return {};
    }
    for (std::size_t column = 0; column < required.size(); ++column) {
        if (required[column] && (column >= matches.size() || matches[column].isNone())) {
            return wxString::Format(
                translated("%s is needed and not used: press OK again to go on."),
                shownText(appColumns[column]));
        }
    }
    std::unordered_map<std::int32_t, std::size_t> takenBy;
    for (std::size_t column = 0; column < matches.size(); ++column) {
        if (matches[column].position < 0) {
            continue;
        }
        const auto [first, isFirst] = takenBy.emplace(matches[column].position, column);
        if (!isFirst) {
            return wxString::Format(
                translated("%s stands at both %s and %s: press OK again to go on."),
                shownText(matches[column].name), shownText(appColumns[first->second]),
                shownText(appColumns[column]));
        }
    }
    return {};
}

} // namespace columnimport
