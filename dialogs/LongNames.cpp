#include "dialogs/LongNames.h"

#include <unordered_map>
#include <vector>

namespace columnimport::LongNames {

namespace {

// A mark is an ellipsis and the number of the name in digits that no text of a person contains.
constexpr wchar_t ellipsis = 0x2026;
constexpr wchar_t firstDigit = 0xE0F0;
constexpr std::size_t base = 10;

struct Kept {
    std::unordered_map<std::string, std::size_t> numbers;
    std::vector<const std::string *> names; // the keys above, which stay where they are
};

Kept &kept() {
    static Kept names;
    return names;
}

bool isDigit(wchar_t character) {
    return character >= firstDigit && character < firstDigit + static_cast<wchar_t>(base);
}

/// The digits of the mark that `text` ends with; empty if it ends with none.
std::wstring digitsOf(const wxString &text) {
    std::wstring digits;
    auto character = text.rbegin();
    while (character != text.rend() && isDigit(*character)) {
        digits.insert(digits.begin(), *character);
        ++character;
    }
    return character != text.rend() && *character == ellipsis ? digits : std::wstring();
}

} // namespace

wxString keep(const std::string &bytes) {
    const auto [place, isNew] = kept().numbers.emplace(bytes, kept().names.size());
    if (isNew) {
        kept().names.push_back(&place->first);
    }
    wxString mark(1, ellipsis);
    for (const char digit : std::to_string(place->second)) {
        mark += static_cast<wchar_t>(firstDigit + (digit - '0'));
    }
    return mark;
}

bool isMarked(const wxString &text) {
    return !digitsOf(text).empty();
}

const std::string *find(const wxString &text) {
    std::size_t number = 0;
    const std::wstring digits = digitsOf(text);
    for (const wchar_t digit : digits) {
        number = number * base + static_cast<std::size_t>(digit - firstDigit);
        if (number >= kept().names.size()) {
            return nullptr;
        }
    }
    return digits.empty() ? nullptr : kept().names[number];
}

void forgetAll() {
    kept() = Kept();
}

} // namespace columnimport::LongNames
