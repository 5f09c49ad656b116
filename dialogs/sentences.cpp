// SPDX-License-Identifier: MIT

#include "dialogs/sentences.h"

#include "delimited/readHeader.h"
#include "languages/translated.h"
#include "names/nameText.h"

#include <algorithm>
#include <unordered_map>

namespace columnimport {

wxString headerSentence(const Header &header) {
    switch (header.firstLine) {
    case FirstLine::cut:
        break;
    case FirstLine::undelimited:
        return translated("The first line of the file does not contain this delimiter.");
    case FirstLine::blank:
        return translated("The first line of the file is blank.");
    case FirstLine::missing:
        return translated("The file is empty.");
    case FirstLine::unreadable:
        return header.reason ? wxString::Format(translated("The file can't be read: %s"),
                                                decoded(header.reason.message()))
                             : translated("The file can't be read.");
    }
    return {};
}

wxString guessSentence(const std::vector<RowMatch> &rows) {
    const auto guesses =
        static_cast<unsigned>(std::count_if(rows.begin(), rows.end(), [](const RowMatch &row) {
            return row.origin == MatchOrigin::similar;
        }));
    return guesses == 0 ? wxString()
                        : wxString::Format(translated("%u row in italics is a guess: check it.",
                                                      "%u rows in italics are guesses: check them.",
                                                      guesses),
                                           guesses);
}

wxString requiredSentence(const std::vector<std::string> &appColumns,
                          const std::vector<bool> &required, const std::vector<RowMatch> &rows) {
    if (std::find(required.begin(), required.end(), true) == required.end()) {
        return {};
    }
    for (std::size_t column = 0; column < required.size(); ++column) {
        if (required[column] &&
            (column >= rows.size() || rows[column].origin == MatchOrigin::none)) {
            return wxString::Format(
                translated("%s is needed and not used: press OK again to go on."),
                shownText(appColumns[column]));
        }
    }
    std::unordered_map<std::int32_t, std::size_t> takenBy;
    for (std::size_t column = 0; column < rows.size(); ++column) {
        if (rows[column].position < 0) {
            continue;
        }
        const auto [first, isFirst] = takenBy.emplace(rows[column].position, column);
        if (!isFirst) {
            return wxString::Format(
                translated("%s stands at both %s and %s: press OK again to go on."),
                rows[column].text, shownText(appColumns[first->second]),
                shownText(appColumns[column]));
        }
    }
    return {};
}

} // namespace columnimport
