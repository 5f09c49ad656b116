// SPDX-License-Identifier: MIT

#pragma once

#include <wx/string.h>

namespace columnimport {

// The dialogs' texts are in the code in English, and in a catalogue for each other language. A host
// that is written with the toolkit has translations of its own; neither finds the other's texts.
// For the user-interface thread alone.

/// Chooses the language of all later texts: the first of the process's languages for messages that
/// has a catalogue, or else English.
void chooseLanguage();

/// `text` in that language, or unchanged if that is English or the catalogue lacks it.
wxString translated(const char *text);

/// The one of two texts that goes with `count`, in that language.
///
///     wxString::Format(translated("%d row", "%d rows", 3), 3) == "3 rows"
wxString translated(const char *one, const char *many, unsigned count);

/// Two texts to be translated later, marked here for the catalogues.
struct Plural {
    const char *one;
    const char *many;
};

constexpr Plural plural(const char *one, const char *many) {
    return {one, many};
}

} // namespace columnimport
