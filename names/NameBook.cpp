// SPDX-License-Identifier: MIT

#include "names/NameBook.h"

#include "languages/translated.h"
#include "names/nameText.h"
#include "names/notUsed.h"

#include <tuple>
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

NameBook::NameBook() {
    clear();
}

wxString NameBook::addColumn(std::string bytes) {
    const auto position = static_cast<std::int32_t>(m_columns.size());
    const wxString text = shownText(bytes);
    m_columns.push_back(&enter(text, {std::move(bytes), position}));
    return *m_columns.back();
}

wxString NameBook::textOf(std::int32_t position) const {
    return position == noColumn ? *m_unused : *m_columns.at(static_cast<std::size_t>(position));
}

wxString NameBook::textOfForeign(const wxString &text) {
    if (m_entries.count(text.ToStdWstring()) != 0) {
        return text;
    }
    const std::string bytes = encoded(text);
    const auto known = m_texts.find(bytes);
    return known != m_texts.end() ? *known->second : enter(readable(text), {bytes, noColumn});
}

std::string NameBook::bytesOf(const wxString &text) const {
    const auto known = m_entries.find(text.ToStdWstring());
    return known != m_entries.end() ? known->second.bytes : encoded(text);
}

std::int32_t NameBook::positionOf(const wxString &text) const {
    const auto known = m_entries.find(text.ToStdWstring());
    return known != m_entries.end() ? known->second.position : noColumn;
}

bool NameBook::isUnused(const wxString &text) const {
    const auto known = m_entries.find(text.ToStdWstring());
    return known != m_entries.end() && known->second.bytes == notUsed;
}

void NameBook::clear() {
    m_texts.clear();
    m_columns.clear();
    m_entries.clear();
    m_sharers.clear();
    // The word of notUsed once more, where it is found for the catalogues.
    m_unused = &enter(translated("Not used"), {notUsed, noColumn});
}

const std::wstring &NameBook::enter(const wxString &text, Entry entry) {
    // A drag of no character at all would be no drag.
    const std::wstring shared = text.empty() ? invisible(1) : text.ToStdWstring();
    auto [place, isNew] = m_entries.try_emplace(shared, std::move(entry));
    // A name may hold invisible characters of its own. An entry that finds no place is not moved.
    while (!isNew) {
        std::tie(place, isNew) =
            m_entries.try_emplace(shared + invisible(++m_sharers[shared]), std::move(entry));
    }
    m_texts.emplace(place->second.bytes, &place->first);
    return place->first;
}

} // namespace columnimport
