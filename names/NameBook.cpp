// SPDX-License-Identifier: MIT

#include "names/NameBook.h"

#include "languages/translated.h"
#include "names/nameText.h"
#include "names/notUsed.h"

#include <algorithm>
#include <cassert>
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
    // The word of notUsed once more, where it is found for the catalogues.
    enter(translated("Not used"), {notUsed, noColumn});
}

wxString NameBook::addColumn(std::string bytes) {
    const std::int32_t position = m_order.back()->second.position + 1;
    assert(textOf(position - 1) == m_order.back()->first);
    const wxString text = shownText(bytes);
    return enter(text, {std::move(bytes), position});
}

wxString NameBook::textOf(std::int32_t position) const {
    static_assert(noColumn == -1);
    return m_order.at(static_cast<std::size_t>(position) + 1)->first;
}

wxString NameBook::textOfForeign(const wxString &text) {
    if (m_entries.count(text.ToStdWstring()) != 0) {
        return text;
    }
    const std::string bytes = encoded(text);
    const auto known = std::find_if(m_order.begin(), m_order.end(), [&bytes](const auto *entry) {
        return entry->second.bytes == bytes;
    });
    return known != m_order.end() ? (*known)->first : enter(readable(text), {bytes, noColumn});
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

const std::wstring &NameBook::enter(const wxString &text, Entry entry) {
    // A drag of no character at all would be no drag.
    const std::wstring shared = text.empty() ? invisible(1) : text.ToStdWstring();
    auto [place, isNew] = m_entries.try_emplace(shared, std::move(entry));
    // A name may hold invisible characters of its own. An entry that finds no place is not moved.
    while (!isNew) {
        std::tie(place, isNew) =
            m_entries.try_emplace(shared + invisible(++m_sharers[shared]), std::move(entry));
    }
    m_order.push_back(&*place);
    return place->first;
}

} // namespace columnimport
