// SPDX-License-Identifier: MIT

#pragma once

class wxStaticText;
class wxTextCtrl;

namespace columnimport {

// Each platform has a file of its own for these; they make up for what its controls do with a size
// that is smaller than they would choose themselves.

/// Makes the one character of a text control readable that is lower than the platform's own.
void fitOneCharacter(wxTextCtrl &control);

/// Cuts the lines of a static text at its right edge instead of wrapping them or drawing beyond it.
void cutLongLines(wxStaticText &text);

} // namespace columnimport
