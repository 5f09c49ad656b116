// SPDX-License-Identifier: MIT

#pragma once

class wxStaticText;
class wxTextCtrl;

namespace columnimport {

// Settings of native controls that the toolkit does not offer. Each platform has a file of its own.

/// Keeps the character readable in a text control that is lower than usual.
void fitOneCharacter(wxTextCtrl &control);

/// Cuts the lines of a static text at its right edge, so that they neither wrap nor overflow.
void cutLongLines(wxStaticText &text);

} // namespace columnimport
