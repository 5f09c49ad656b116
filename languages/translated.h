// SPDX-License-Identifier: MIT

#pragma once

#include <wx/string.h>

namespace columnimport {

// The texts of the dialogs stand in the code in English, and in a catalogue for each other
// language. The catalogues are the library's own business: a host that is written with the toolkit
// has its translations for itself, and neither finds the other's texts. On the user-interface
// thread alone.

/// Chooses the language for the texts from now on: the first for which there is a catalogue among
/// those that the process has for messages, as its host set it. English if there is none.
void chooseLanguage();

/// `text` in that language; as it stands if that is English or the catalogue does not have it.
wxString translated(const char *text);

/// The one of two texts that goes with `count`, in that language.
///
///     wxString::Format(translated("%d row", "%d rows", 3), 3) == "3 rows"
wxString translated(const char *one, const char *many, unsigned count);

/// Two texts that are translated later, marked here for the catalogues.
struct Plural {
    const char *one;
    const char *many;
};

constexpr Plural plural(const char *one, const char *many) {
    return {one, many};
}

} // namespace columnimport
