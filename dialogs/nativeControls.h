// SPDX-License-Identifier: MIT

#pragma once

class wxStaticText;
class wxTextCtrl;

namespace columnimport {

// What the toolkit leaves to the platform's own controls. Each platform has a file of its own.

/// Makes the one character readable in a text control that is lower than the platform's own.
void fitOneCharacter(wxTextCtrl &control);

/// Cuts the lines of a static text at its right edge instead of wrapping them or drawing beyond it.
void cutLongLines(wxStaticText &text);

} // namespace columnimport
