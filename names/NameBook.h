// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include <wx/string.h>

namespace columnimport {

/// Under which text each source column of an open dialog is shown, and which column and which bytes
/// a shown text stands for.
///
/// A name is bytes, of any encoding or none. What a control shows is made for a reader: decoded as
/// well as may be, the head of it if it is long, with stand-ins for control characters. It need not
/// lead back to the bytes, since the book knows them. No two columns have the same text: what would
/// read the same gets an invisible difference, a number in characters without a width. That goes
/// for columns of the same name too, and for one that is called "Not used". No text is empty, or it
/// could not be dragged.
///
///     position  bytes              shown as
///     none                         Not used, in the language of the dialog
///     0         plong\xC3\xA9e     plongée
///     1         plong\xE9e         plongée and an invisible 1
///     2         hole\0name         hole␀name
///     3         5,000 times x      400 times x, and an ellipsis
///     4         plong\xC3\xA9e     plongée and an invisible 2
///     5         Not used           Not used and an invisible 1
///     6         no byte at all     an invisible 1
///
/// Every way through the dialog, a proposal, a saved match or a drag, carries the text; the column
/// comes back from here, whatever becomes of the process's locale meanwhile.
class NameBook {
public:
    /// What stands in the place of a position where there is no column.
    static constexpr std::int32_t noColumn = -1;

    NameBook();
    NameBook(const NameBook &) = delete;
    NameBook &operator=(const NameBook &) = delete;

    /// Enters the source's next column, the first one at position 0, and returns its text. No
    /// foreign text may have been entered before.
    wxString addColumn(std::string bytes);

    /// The text of a column, or for `noColumn` the one that says that no column is used.
    wxString textOf(std::int32_t position) const;

    /// The text under which foreign text is shown, which came from another program. What the dialog
    /// shows under this very text is meant by it; otherwise it stands for its bytes in the
    /// process's locale, or as UTF-8 where the locale has nothing for it, and for the first column
    /// of that name if there is one.
    wxString textOfForeign(const wxString &text);

    /// The bytes that a shown text stands for; "Not used" where no column is used. A text that the
    /// book never gave is foreign.
    std::string bytesOf(const wxString &text) const;

    /// The position of the column that a shown text stands for, or `noColumn`.
    std::int32_t positionOf(const wxString &text) const;

    /// Whether a shown text says that no column is used, or is that of a column called so.
    bool isUnused(const wxString &text) const;

private:
    struct Entry {
        std::string bytes;
        std::int32_t position;
    };

    using Entries = std::unordered_map<std::wstring, Entry>;

    const std::wstring &enter(const wxString &text, Entry entry);

    Entries m_entries; ///< by their texts
    /// As they were entered: that for `noColumn`, the columns, foreign texts.
    std::vector<const Entries::value_type *> m_order;
    std::unordered_map<std::wstring, std::size_t> m_sharers; ///< by text, how many more share it
};

} // namespace columnimport
