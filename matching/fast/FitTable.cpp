// SPDX-License-Identifier: MIT

#include "matching/fast/FitTable.h"

#include <algorithm>

namespace columnimport {

FitTable::FitTable(const std::vector<std::string> &appColumns, const Alternatives &alternatives) {
    m_fits.reserve(appColumns.size());
    for (std::size_t i = 0; i < appColumns.size(); ++i) {
        std::int32_t &equal = m_fits[appColumns[i]].equal;
        equal = std::min(equal, static_cast<std::int32_t>(i));
    }
    for (const auto &[head, listed] : m_synonyms) {
        for (const std::string &word : listed) {
            link(head, word);
            link(word, head);
        }
    }
    for (std::size_t i = 0; i < alternatives.size(); ++i) {
        for (const std::string &word : alternatives[i]) {
            std::int32_t &first = m_fits[word].synonym;
            first = std::min(first, static_cast<std::int32_t>(i));
        }
    }
}

void FitTable::link(std::string_view appColumn, std::string_view synonym) {
    const auto app = m_fits.find(appColumn);
    if (app == m_fits.end() || app->second.equal == none) {
        return;
    }
    const std::int32_t index = app->second.equal;
    std::int32_t &first = m_fits[synonym].synonym;
    first = std::min(first, index);
}

Vote FitTable::find(std::string_view fileColumn) const {
    const auto fit = m_fits.find(fileColumn);
    if (fit == m_fits.end()) {
        return {};
    }
    return fit->second.equal != none ? Vote{1.0, fit->second.equal}
                                     : Vote{0.99, fit->second.synonym};
}

} // namespace columnimport
