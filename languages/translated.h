// SPDX-License-Identifier: MIT

#pragma once

#include <wx/string.h>

namespace columnimport {

// The dialogs' texts are English in the code; each other language has a catalogue. The catalogues
// are separate from the translations of a host that is written with the toolkit: neither finds the
// other's texts. On the user-interface thread alone.

/// Chooses the language of the texts from now on: the first of the process's languages for
/// messages, as its host set them, that has a catalogue. English if there is none.
void chooseLanguage();

/// `text` in that language; unchanged in English, or if the catalogue lacks it.
wxString translated(const char *text);

/// The singular or plural text for `count`, in that language.
///
///     wxString::Format(translated("%d row", "%d rows", 3), 3) == "3 rows"
wxString translated(const char *one, const char *many, unsigned count);

/// Two texts to translate later, marked for the catalogues.
struct Plural {
    const char *one;
    const char *many;
};

constexpr Plural plural(const char *one, const char *many) {
    return {one, many};
}

} // namespace columnimport
