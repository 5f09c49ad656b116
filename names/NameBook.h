// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

#include <wx/string.h>

namespace columnimport {

/// Under which text each name of an open dialog is shown, and which bytes it stands for.
///
/// A name is bytes, of any encoding or none. What a control shows is made for a reader: decoded as
/// well as may be, the head of it if it is long, with stand-ins for control characters. It need not
/// lead back to the bytes, since the book knows them. No two names have the same text: what would
/// read the same gets an invisible difference, a number in characters without a width. No text is
/// empty, or it could not be dragged.
///
///     bytes              shown as
///     plong\xC3\xA9e     plongée
///     plong\xE9e         plongée and an invisible 1
///     hole\0name         hole␀name
///     5,000 times x      400 times x, and an ellipsis
///     no byte at all     an invisible 1
///
/// Every way through the dialog, a proposal, a saved match or a drag, carries the text; the bytes
/// come back from here, whatever becomes of the process's locale meanwhile.
class NameBook {
public:
    /// The text under which `bytes` are shown; the same for the same bytes until `clear`.
    wxString textOf(const std::string &bytes);

    /// The text under which foreign text is shown, which came from another program. The name of
    /// the dialog that has this very text is meant by it; otherwise it stands for its bytes in the
    /// process's locale, or as UTF-8 where the locale has nothing for it.
    wxString textOfForeign(const wxString &text);

    /// The bytes that a shown text stands for. A text that the book never gave is foreign.
    std::string bytesOf(const wxString &text) const;

    /// Forgets all names.
    void clear();

private:
    wxString enter(const wxString &text, const std::string &bytes);

    std::unordered_map<std::wstring, std::string> m_names;              ///< by their texts
    std::unordered_map<std::string_view, const std::wstring *> m_texts; ///< by the names' bytes
    std::unordered_map<std::wstring, std::size_t> m_alike; ///< names that share a text, but one
};

} // namespace columnimport
