// SPDX-License-Identifier: MIT

#pragma once

#include <wx/colour.h>

namespace columnimport {

/// How a marked row is shown.
struct MarkColours {
    wxColour ground;
    wxColour text;
};

/// The colours of a marked row in a list with this `background`, whose row under the pointer has
/// the colour `hover`: a tone of that colour that stands out from both, and black or white on it,
/// whichever reads better. In any theme a person can tell the three apart.
MarkColours markColours(const wxColour &background, const wxColour &hover);

/// How far two colours can be told apart: from 1, not at all, to 21 for black and white. What
/// carries a meaning wants 3, and text 4.5.
double contrast(const wxColour &one, const wxColour &other);

} // namespace columnimport
