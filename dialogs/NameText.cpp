#include "dialogs/NameText.h"

#include "dialogs/LongNames.h"

#include <algorithm>
#include <string_view>

#include <wx/strconv.h>

namespace columnimport {

namespace {

/// UTF-8, with a private character of the toolkit's for each byte that is none.
const wxMBConvUTF8 &lossless() {
    static const wxMBConvUTF8 conversion(wxMBConvUTF8::MAP_INVALID_UTF8_TO_PUA);
    return conversion;
}

/// Whether all characters are Unicode's: the toolkit decodes some that are not, and then can't
/// encode them.
bool isUnicode(const wxString &text) {
    return std::all_of(text.begin(), text.end(), [](wxUniChar character) {
        const wxUint32 value = character.GetValue();
        return value <= 0x10FFFF && (value < 0xD800 || value > 0xDFFF);
    });
}

/// The text of `bytes` in the process's locale; empty if the locale can't decode them.
wxString inLocale(const std::string &bytes) {
    return wxString(bytes.data(), wxConvLibc, bytes.size());
}

std::string plainBytes(const wxString &text) {
    std::string bytes = text.ToStdString(lossless());
    const bool hasPrivateCharacters = bytes != text.utf8_string();
    if (hasPrivateCharacters) {
        return bytes;
    }
    std::string localeBytes = text.ToStdString(wxConvLibc);
    return localeBytes.empty() ? bytes : localeBytes;
}

wxString plainText(const std::string &bytes) {
    for (const wxString &text :
         {inLocale(bytes), wxString(bytes.data(), lossless(), bytes.size())}) {
        if (isUnicode(text) && !LongNames::isMarked(text) && plainBytes(text) == bytes) {
            return text;
        }
    }
    // Neither text would lead back to these bytes.
    wxString text;
    for (const char &byte : bytes) {
        text += wxString(&byte, lossless(), 1);
    }
    return text;
}

/// The first bytes of a text that is too long, without a part of a UTF-8 character at their end.
std::string headOf(std::string_view bytes) {
    std::size_t length = LongNames::shownLength;
    while (length > LongNames::shownLength - 3 && (bytes[length] & 0xC0) == 0x80) {
        --length;
    }
    return std::string(bytes.substr(0, length));
}

wxString readableLine(std::string_view line) {
    const std::string shown =
        line.size() > LongNames::shownLength ? headOf(line) : std::string(line);
    wxString text = inLocale(shown);
    if (text.empty()) {
        text = wxString::FromUTF8(shown.data(), shown.size());
    }
    return text.empty() ? wxString(shown.data(), wxConvISO8859_1, shown.size()) : text;
}

} // namespace

wxString toText(const std::string &bytes) {
    return bytes.size() > LongNames::shownLength ? plainText(headOf(bytes)) + LongNames::keep(bytes)
                                                 : plainText(bytes);
}

std::string toBytes(const wxString &text) {
    const std::string *longName = LongNames::find(text);
    return longName != nullptr ? *longName : plainBytes(text);
}

wxString toPreviewText(const std::string &bytes) {
    wxString text;
    std::string_view rest(bytes);
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        text += readableLine(rest.substr(0, end));
        if (end < rest.size()) {
            text += '\n';
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return text;
}

} // namespace columnimport
