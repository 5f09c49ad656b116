// SPDX-License-Identifier: MIT

#include "dialogs/headerSentence.h"

#include "delimited/readHeader.h"
#include "languages/translated.h"
#include "names/nameText.h"

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

} // namespace columnimport
