// SPDX-License-Identifier: MIT

#include "names/NameBook.h"

#include "names/nameText.h"

#include <tuple>

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

wxString NameBook::textOf(const std::string &bytes) {
    const auto known = m_texts.find(bytes);
    return known != m_texts.end() ? wxString(*known->second) : enter(shownText(bytes), bytes);
}

wxString NameBook::textOfForeign(const wxString &text) {
    if (m_names.count(text.ToStdWstring()) != 0) {
        return text;
    }
    const std::string bytes = encoded(text);
    const auto known = m_texts.find(bytes);
    return known != m_texts.end() ? wxString(*known->second) : enter(readable(text), bytes);
}

std::string NameBook::bytesOf(const wxString &text) const {
    const auto known = m_names.find(text.ToStdWstring());
    return known != m_names.end() ? known->second : encoded(text);
}

void NameBook::clear() {
    m_texts.clear();
    m_names.clear();
    m_alike.clear();
}

wxString NameBook::enter(const wxString &text, const std::string &bytes) {
    // A drag of no character at all would be no drag.
    const std::wstring alike = text.empty() ? invisible(1) : text.ToStdWstring();
    auto [entry, isNew] = m_names.emplace(alike, bytes);
    // A name may hold invisible characters of its own.
    while (!isNew) {
        std::tie(entry, isNew) = m_names.emplace(alike + invisible(++m_alike[alike]), bytes);
    }
    m_texts.emplace(entry->second, &entry->first);
    return entry->first;
}

} // namespace columnimport
