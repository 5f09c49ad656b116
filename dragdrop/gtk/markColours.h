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
/// the colour `hover`: a tone of that colour that stands out from both, and black or white text on
/// it. In any theme a person can distinguish the three.
MarkColours markColours(const wxColour &background, const wxColour &hover);

/// The contrast of two colours: from 1, none, to 21 for black and white. A mark needs 3, and text
/// 4.5.
double contrast(const wxColour &one, const wxColour &other);

} // namespace columnimport
