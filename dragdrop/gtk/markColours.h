// SPDX-License-Identifier: MIT

#pragma once

#include <wx/colour.h>

namespace columnimport {

/// How a marked row is shown.
struct MarkColours {
    wxColour ground;
    wxColour text;
};

/// The colours of a marked row in a list with this `background` and with `hover` as the colour of
/// the row under the pointer: a tone of `hover` that stands out from both, and black or white text.
/// A person can tell the three apart in any theme.
MarkColours markColours(const wxColour &background, const wxColour &hover);

/// The contrast of two colours: from 1 for equal ones to 21 for black and white. A mark needs 3,
/// text needs 4.5.
double contrast(const wxColour &one, const wxColour &other);

} // namespace columnimport
