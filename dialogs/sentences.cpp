// SPDX-License-Identifier: MIT

#include "dialogs/sentences.h"

#include "delimited/readHeader.h"
#include "dragdrop/ListCtrlSource.h"
#include "languages/translated.h"
#include "names/nameText.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <unordered_map>

#include <wx/translation.h>

namespace columnimport {

namespace {

/// The texts for a delimiter that the first line contains.
struct Offer {
    char delimiter;
    Plural count;
    const char *label;
};

constexpr Offer offers[] = {
    {',', plural("It contains %u comma.", "It contains %u commas."), wxTRANSLATE("Use comma")},
    {';', plural("It contains %u semicolon.", "It contains %u semicolons."),
     wxTRANSLATE("Use semicolon")},
    {'\t', plural("It contains %u tab.", "It contains %u tabs."), wxTRANSLATE("Use tab")},
    {' ', plural("It contains %u space.", "It contains %u spaces."), wxTRANSLATE("Use space")},
    {'|', plural("It contains %u bar.", "It contains %u bars."), wxTRANSLATE("Use bar")},
};

const Offer &offerFor(char delimiter) {
    return *std::find_if(std::begin(offers), std::end(offers),
                         [delimiter](const Offer &offer) { return offer.delimiter == delimiter; });
}

wxString undelimitedSentence(const std::optional<LikelyDelimiter> &likely) {
    wxString sentence = translated("The first line of the file does not contain this delimiter.");
    if (likely) {
        const Offer &offer = offerFor(likely->delimiter);
        const auto count = static_cast<unsigned>(likely->count);
        sentence +=
            '\n' + wxString::Format(translated(offer.count.one, offer.count.many, count), count);
    }
    return sentence;
}

} // namespace

wxString offerOf(char delimiter) {
    return translated(offerFor(delimiter).label);
}

wxString headerSentence(const Header &header) {
    switch (header.firstLine) {
    case FirstLine::cut:
        break;
    case FirstLine::undelimited:
        return undelimitedSentence(header.likely);
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
