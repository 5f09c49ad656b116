// SPDX-License-Identifier: MIT

#pragma once

class wxStaticText;
class wxString;
class wxTextCtrl;
class wxWindow;

namespace columnimport {

// What the toolkit leaves to the platform's own controls. Each platform has a file of its own.

/// Makes the one character of a text control readable that is lower than the platform's own.
void fitOneCharacter(wxTextCtrl &control);

/// Cuts the lines of a static text at its right edge instead of wrapping them or drawing beyond it.
void cutLongLines(wxStaticText &text);

/// Gives `control` the name by which a screen reader tells it from others.
void setAccessibleName(wxWindow &control, const wxString &name);

/// Has a screen reader read out what `control` says whenever it is shown.
void announceWhenShown(wxWindow &control);

} // namespace columnimport
