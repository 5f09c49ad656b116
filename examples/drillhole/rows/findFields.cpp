// SPDX-License-Identifier: MIT

#include "examples/drillhole/rows/findFields.h"

#include "examples/drillhole/rows/Fault.h"

#include <algorithm>
#include <charconv>

namespace drillhole {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

std::string quoted(std::string_view name) {
    return '"' + std::string(name) + '"';
}

/// What is left of a name when neither quotes nor blanks count.
std::string bare(std::string_view name) {
    std::string text;
    std::copy_if(name.begin(), name.end(), std::back_inserter(text), [](char byte) {
        return byte != '"' && byte != ' ' && byte != '\t' && byte != '\r';
    });
    return text;
}

/// The positions in the row of the fields that the dialog sees too.
std::vector<std::size_t> fieldsShown(const Row &first, char delimiter) {
    const bool dropsEmpty = delimiter == ' ' || delimiter == '\t';
    std::vector<std::size_t> positions;
    for (std::size_t i = 0; i < first.fields.size(); ++i) {
        if (!dropsEmpty || first.fields[i].data() != nullptr) {
            positions.push_back(i);
        }
    }
    return positions;
}

void requireSameFields(const std::vector<std::string> &shown, const Row &first,
                       const std::vector<std::size_t> &positions) {
    if (shown.empty()) {
        throw Fault(
            "The file is empty or begins with a blank line, so the dialog had no columns to "
            "show. Take the blank lines off its head and import it again.");
    }
    const std::size_t common = std::min(shown.size(), positions.size());
    for (std::size_t i = 0; i < common; ++i) {
        if (bare(shown[i]) != bare(first.fields[positions[i]])) {
            throw Fault("In the first line, " + quoted(first.fields[positions[i]]) +
                        " holds the delimiter or a line end between its quotes, so the columns in "
                        "the dialog are not those of the rows. Take it out of the title, or choose "
                        "another delimiter.");
        }
    }
    if (shown.size() != positions.size()) {
        throw Fault("The dialog cut the first line into " + std::to_string(shown.size()) +
                    " columns, the rows have " + std::to_string(positions.size()) +
                    ". Correct the quotes in the first line, or choose another delimiter.");
    }
}

std::string_view withoutMark(std::string_view name) {
    return name.substr(0, byteOrderMark.size()) == byteOrderMark ? name.substr(byteOrderMark.size())
                                                                 : name;
}

std::size_t placeOfName(std::string_view name, const std::vector<std::string> &shown) {
    const auto place = std::find(shown.begin(), shown.end(), name);
    if (place == shown.end()) {
        throw Fault("There is no column " + quoted(name) +
                    " any more. The source was changed meanwhile; import it again.");
    }
    const auto second = std::find(place + 1, shown.end(), name);
    if (second != shown.end()) {
        throw Fault("Columns " + std::to_string(place - shown.begin() + 1) + " and " +
                    std::to_string(second - shown.begin() + 1) + " are both called " +
                    quoted(name) +
                    ". Give them different titles, or untick the first line in the dialog and "
                    "match them by number.");
    }
    return static_cast<std::size_t>(place - shown.begin());
}

std::size_t placeOfNumber(std::string_view name, std::size_t count) {
    constexpr std::string_view stem = "Column";
    std::size_t number = 0;
    if (name.substr(0, stem.size()) == stem) {
        std::from_chars(name.data() + stem.size(), name.data() + name.size(), number);
    }
    if (number < 1 || number > count) {
        throw Fault("There is no " + std::string(name) +
                    " any more. The file was changed meanwhile; import it again.");
    }
    return number - 1;
}

FieldPositions findNumbers(const std::vector<std::string> &matches, std::size_t count) {
    FieldPositions found(matches.size());
    for (std::size_t i = 0; i < matches.size(); ++i) {
        if (!matches[i].empty()) {
            found[i] = placeOfNumber(matches[i], count);
        }
    }
    return found;
}

} // namespace

FieldPositions findColumns(const std::vector<std::string> &matches,
                           const std::vector<std::string> &columns) {
    FieldPositions found(matches.size());
    for (std::size_t i = 0; i < matches.size(); ++i) {
        if (!matches[i].empty()) {
            found[i] = placeOfName(withoutMark(matches[i]), columns);
        }
    }
    return found;
}

FieldPositions findFields(const std::vector<std::string> &matches,
                          const std::vector<std::string> &shown, const Row &first, char delimiter,
                          bool firstLineHoldsTitles) {
    const std::vector<std::size_t> positions = fieldsShown(first, delimiter);
    requireSameFields(shown, first, positions);
    FieldPositions found =
        firstLineHoldsTitles ? findColumns(matches, shown) : findNumbers(matches, shown.size());
    for (std::optional<std::size_t> &place : found) {
        if (place) {
            place = positions[*place];
        }
    }
    return found;
}

} // namespace drillhole
