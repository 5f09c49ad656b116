// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include <wx/arrstr.h>
#include <wx/string.h>

namespace columnimport {

/// The texts under which the columns of a source are shown, and the columns and bytes that a shown
/// text stands for.
///
/// A name is bytes, of any encoding or none. The shown text is made for a reader: decoded as well
/// as possible, cut if it is long, with stand-ins for control characters. No two columns share a
/// text. Names that would read the same get an invisible difference, a number in characters without
/// a width; so does a column that is called "Not used". No text is empty, since an empty one could
/// not be dragged.
///
///     position  name               shown as
///     none                         Not used, in the language of the dialog
///     0         plong\xC3\xA9e     plongée
///     1         plong\xE9e         plongée and an invisible 1
///     2         hole\tname         hole→name
///     3         5,000 times x      400 times x, and an ellipsis
///     4         plong\xC3\xA9e     plongée and an invisible 2
///     5         Not used           Not used and an invisible 1
///     6         no byte at all     an invisible 1
///
/// The match list holds these texts. They keep their meaning when the process's locale changes.
class ShownNames {
public:
    /// Stands in the place of a position where there is no column.
    static constexpr std::int32_t noColumn = -1;

    /// The columns of a source with these titles. Without titles in them the columns are called
    /// "Column1" and so on.
    ShownNames(std::vector<std::string> titles, bool holdsTitles);
    ShownNames(const ShownNames &) = delete;
    ShownNames &operator=(const ShownNames &) = delete;

    const std::vector<std::string> &titles() const { return m_titles; }
    bool holdsTitles() const { return m_holdsTitles; }

    /// The texts of all columns.
    wxArrayString texts() const;

    /// The text of a column, or of "Not used" for `noColumn`.
    wxString textOf(std::int32_t position) const;

    /// The text under which a text from outside is shown. It means the column that is shown under
    /// this very text; else the first column whose name has its bytes, in the process's locale or
    /// as UTF-8 where the locale has nothing for it; else no column.
    wxString textOfForeign(const wxString &text);

    /// The text under which the name shown as `text` leaves for other programs: without the
    /// invisible difference, and a blank for an empty name. If the text comes back it is the name
    /// that left last.
    wxString textForOthers(const wxString &text);

    /// The bytes that a shown text stands for; "Not used" where no column is used. A text that was
    /// never shown is foreign.
    std::string bytesOf(const wxString &text) const;

    /// The position of the column that a shown text stands for, or `noColumn`.
    std::int32_t positionOf(const wxString &text) const;

    /// Whether a shown text says that no column is used, or is that of a column called so.
    bool isUnused(const wxString &text) const;

private:
    struct Entry {
        std::int32_t position;
        std::string foreignBytes;  ///< of a text that is no column's
        std::size_t visibleLength; ///< of the text, without its invisible difference
    };

    using Entries = std::unordered_map<std::wstring, Entry>;

    const std::wstring &enter(const wxString &text, std::int32_t position,
                              std::string foreignBytes = {});
    std::string bytesOf(const Entry &entry) const;

    std::vector<std::string> m_titles;
    bool m_holdsTitles;
    Entries m_entries;                         ///< by their texts
    std::vector<const std::wstring *> m_texts; ///< of "Not used" and then of the columns
    std::unordered_map<std::wstring, std::size_t> m_sharers; ///< by text, how many more share it
    wxString m_left; ///< the name that left last, as it is shown
    wxString m_leftAs;
};

} // namespace columnimport
