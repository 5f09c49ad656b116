// SPDX-License-Identifier: MIT

#include "names/ShownNames.h"

#include "languages/translated.h"
#include "names/ColumnMatch.h"
#include "names/nameText.h"

#include <algorithm>
#include <utility>

namespace columnimport {

namespace {

std::wstring invisible(std::size_t number) {
    constexpr wchar_t zeroWidthSpace = L'\x200B';
    constexpr wchar_t zeroWidthNonJoiner = L'\x200C';
    std::wstring digits;
    for (; number > 0; number /= 2) {
        digits += number % 2 == 0 ? zeroWidthNonJoiner : zeroWidthSpace;
    }
    return digits;
}

} // namespace

ShownNames::ShownNames(std::vector<std::string> titles, bool holdsTitles)
    : m_titles(std::move(titles)), m_holdsTitles(holdsTitles) {
    m_entries.reserve(m_titles.size() + 1);
    m_texts.reserve(m_titles.size() + 1);
    // A literal instead of `notUsed`, so that the catalogue tool finds it.
    m_texts.push_back(&enter(translated("Not used"), noColumn, notUsed));
    for (std::size_t position = 0; position < m_titles.size(); ++position) {
        const wxString text = m_holdsTitles ? shownText(m_titles[position])
                                            : wxString(columnName(m_titles, false, position));
        m_texts.push_back(&enter(text, static_cast<std::int32_t>(position)));
    }
}

wxArrayString ShownNames::texts() const {
    wxArrayString texts;
    texts.reserve(m_titles.size());
    for (std::size_t position = 0; position < m_titles.size(); ++position) {
        texts.push_back(*m_texts[position + 1]);
    }
    return texts;
}

wxString ShownNames::textOf(std::int32_t position) const {
    static_assert(noColumn == -1);
    return *m_texts.at(static_cast<std::size_t>(position) + 1);
}

wxString ShownNames::textOfForeign(const wxString &text, Transfer transfer) {
    const Departure &last = m_departures[transfer];
    if (!text.empty() && text == last.leftAs) {
        return last.shown;
    }
    if (m_entries.count(text.ToStdWstring()) != 0) {
        return text;
    }
    const std::string bytes = encoded(text);
    for (const auto &[shown, entry] : m_entries) {
        if (entry.position == noColumn && entry.foreignBytes == bytes) {
            return shown;
        }
    }
    const auto title = std::find(m_titles.begin(), m_titles.end(), bytes);
    return m_holdsTitles && title != m_titles.end()
               ? *m_texts[static_cast<std::size_t>(title - m_titles.begin()) + 1]
               : enter(readable(text), noColumn, bytes);
}

wxString ShownNames::textForOthers(const wxString &text, Transfer transfer) {
    const auto known = m_entries.find(text.ToStdWstring());
    Departure &last = m_departures[transfer];
    last.shown = text;
    last.leftAs = known == m_entries.end() ? text : text.Left(known->second.visibleLength);
    if (last.leftAs.empty()) {
        last.leftAs = ' ';
    }
    return last.leftAs;
}

std::string ShownNames::bytesOf(const wxString &text) const {
    const auto known = m_entries.find(text.ToStdWstring());
    return known != m_entries.end() ? bytesOf(known->second) : encoded(text);
}

std::string ShownNames::bytesOf(const Entry &entry) const {
    return entry.position == noColumn
               ? entry.foreignBytes
               : columnName(m_titles, m_holdsTitles, static_cast<std::size_t>(entry.position));
}

std::int32_t ShownNames::positionOf(const wxString &text) const {
    const auto known = m_entries.find(text.ToStdWstring());
    return known != m_entries.end() ? known->second.position : noColumn;
}

bool ShownNames::isUnused(const wxString &text) const {
    const auto known = m_entries.find(text.ToStdWstring());
    return known != m_entries.end() && bytesOf(known->second) == notUsed;
}

const std::wstring &ShownNames::enter(const wxString &text, std::int32_t position,
                                      std::string foreignBytes) {
    const std::wstring &visible = text.ToStdWstring();
    const std::wstring shared = visible.empty() ? invisible(1) : visible;
    std::wstring shown = shared;
    // A name may contain zero-width characters itself, so a number may be taken already.
    while (m_entries.count(shown) != 0) {
        shown = shared + invisible(++m_sharers[shared]);
    }
    return m_entries
        .emplace(std::move(shown), Entry{position, std::move(foreignBytes), visible.size()})
        .first->first;
}

} // namespace columnimport
