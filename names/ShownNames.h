// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include <wx/arrstr.h>
#include <wx/string.h>

namespace columnimport {

/// Maps the columns of a source to the texts that show them, and shown texts back to columns and
/// bytes.
///
/// A name is bytes, in any encoding or none. Its shown text is decoded as well as possible, cut if
/// too long, and has stand-ins for control characters. No two columns share a text: names that
/// would read the same, and a column called "Not used", get an invisible number in zero-width
/// characters. No text is empty, since an empty text can't be dragged.
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
/// The match list holds these texts. They keep their meaning if the process's locale changes.
class ShownNames {
public:
    /// The position of "Not used".
    static constexpr std::int32_t noColumn = -1;

    /// `titles` are the fields of the source's first line. If they are not titles, the columns are
    /// called "Column1" and so on.
    ShownNames(std::vector<std::string> titles, bool holdsTitles);
    ShownNames(const ShownNames &) = delete;
    ShownNames &operator=(const ShownNames &) = delete;

    const std::vector<std::string> &titles() const { return m_titles; }
    bool holdsTitles() const { return m_holdsTitles; }

    /// The texts of all columns.
    wxArrayString texts() const;

    /// The text of a column, or of "Not used" for `noColumn`.
    wxString textOf(std::int32_t position) const;

    /// How a text leaves the dialog and comes back.
    enum Transfer : unsigned char { drag, clipboard };

    /// The text that other programs get for the shown `text`: without the invisible number, and a
    /// blank for an empty name. If it comes back by the same transfer, it stands for the name that
    /// left last by it.
    wxString textForOthers(const wxString &text, Transfer transfer);

    /// The shown text for a text from outside. It stands for the name that left last by the same
    /// transfer if that left as this text, else for the column with exactly this shown text, else
    /// for the first column whose name is the same bytes once `encoded`, else for no column.
    wxString textOfForeign(const wxString &text, Transfer transfer);

    /// The bytes that a shown text stands for; "Not used" for no column. For a text that was never
    /// shown, `encoded(text)`.
    std::string bytesOf(const wxString &text) const;

    /// The position of the column that a shown text stands for, or `noColumn`.
    std::int32_t positionOf(const wxString &text) const;

    /// Whether a shown text stands for the bytes "Not used": for no column, or for a column of that
    /// name.
    bool isUnused(const wxString &text) const;

private:
    struct Entry {
        std::int32_t position;
        std::string foreignBytes;  ///< of a text without a column
        std::size_t visibleLength; ///< length of the text without its invisible number
    };

    /// A name that left the dialog.
    struct Departure {
        wxString shown;
        wxString leftAs; ///< never empty once a name has left
    };

    using Entries = std::unordered_map<std::wstring, Entry>;

    const std::wstring &enter(const wxString &text, std::int32_t position,
                              std::string foreignBytes = {});
    std::string bytesOf(const Entry &entry) const;

    std::vector<std::string> m_titles;
    bool m_holdsTitles;
    Entries m_entries;                         ///< by their texts
    std::vector<const std::wstring *> m_texts; ///< "Not used", then those of the columns
    std::unordered_map<std::wstring, std::size_t> m_sharers; ///< how many more share a text
    std::array<Departure, 2> m_departures;                   ///< by transfer, the last one
};

} // namespace columnimport
