// SPDX-License-Identifier: MIT

#include "names/nameText.h"

#include "names/isUtf8.h"

#include <algorithm>
#include <string_view>

#include <wx/strconv.h>

namespace columnimport {

namespace {

constexpr wchar_t ellipsis = L'\x2026';

/// Whether `text` is valid Unicode. The toolkit and some locales also decode surrogates and
/// characters beyond U+10FFFF.
bool isUnicode(const wxString &text) {
    const std::string bytes = text.utf8_string();
    return !bytes.empty() && isUtf8(bytes);
}

/// A visible stand-in for an invisible character, or else the character itself. The fonts of a
/// plain Debian and of Windows contain all stand-ins.
wxUniChar standIn(wxUniChar character) {
    constexpr wxUint32 arrow = 0x2192;
    constexpr wxUint32 paragraph = 0xB6;
    constexpr wxUint32 replacement = 0xFFFD;
    constexpr wxUint32 byteOrderMark = 0xFEFF;
    const wxUint32 value = character.GetValue();
    if (value == '\t') {
        return arrow;
    }
    if (value == '\n' || value == '\r') {
        return paragraph;
    }
    const bool isControl = value < 0x20 || (value >= 0x7F && value < 0xA0);
    return isControl || value == byteOrderMark ? wxUniChar(replacement) : character;
}

/// `bytes`, cut between two UTF-8 characters if they are too long.
std::string_view head(std::string_view bytes) {
    std::size_t length = std::min(bytes.size(), shownLength);
    while (length < bytes.size() && length > shownLength - 3 &&
           (static_cast<unsigned char>(bytes[length]) & 0xC0U) == 0x80) {
        --length;
    }
    return bytes.substr(0, length);
}

/// `bytes` as text; cut, with an ellipsis, if they are too long.
wxString decodedHead(std::string_view bytes) {
    const std::string_view shown = head(bytes);
    wxString text = decoded(std::string(shown));
    if (shown.size() < bytes.size()) {
        text += ellipsis;
    }
    return text;
}

} // namespace

wxString decoded(const std::string &bytes) {
    for (const wxString &text : {wxString::FromUTF8(bytes.data(), bytes.size()),
                                 wxString(bytes.data(), wxConvLibc, bytes.size())}) {
        if (isUnicode(text)) {
            return text;
        }
    }
    return {bytes.data(), wxConvISO8859_1, bytes.size()};
}

std::string encoded(const wxString &text) {
    std::string bytes = text.ToStdString(wxConvLibc);
    return bytes.empty() ? text.utf8_string() : bytes;
}

wxString readable(const wxString &text) {
    const bool isLong = text.length() > shownLength;
    wxString shown = isLong ? text.Left(shownLength) : text;
    std::transform(shown.begin(), shown.end(), shown.begin(), standIn);
    return isLong ? shown + ellipsis : shown;
}

wxString shownText(const std::string &bytes) {
    return readable(decodedHead(bytes));
}

wxString previewText(const std::string &lines) {
    wxString text;
    std::string_view rest(lines);
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        wxString line = decodedHead(rest.substr(0, end));
        std::transform(line.begin(), line.end(), line.begin(), [](wxUniChar character) {
            return character == '\t' ? character : standIn(character);
        });
        text += line;
        if (end < rest.size()) {
            text += '\n';
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return text;
}

} // namespace columnimport
