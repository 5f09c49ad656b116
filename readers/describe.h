// SPDX-License-Identifier: MIT

#pragma once

class wxString;
class wxWindow;

namespace columnimport {

class ListBoxSource;

// Descriptions of single controls for screen readers. Each platform has a file of its own.

/// Gives `control` its name for screen readers.
void setAccessibleName(wxWindow &control, const wxString &name);

/// The same for the list of file columns, whose entries say which of them are in use.
void describeFileColumns(ListBoxSource &list, const wxString &name);

/// Has a screen reader announce the text of `control` whenever it is shown.
void announceWhenShown(wxWindow &control);

} // namespace columnimport
