// SPDX-License-Identifier: MIT

#pragma once

class wxString;
class wxWindow;

namespace columnimport {

class ListBoxSource;

// What a screen reader is told of single controls. Each platform has a file of its own.

/// Gives `control` the name by which a screen reader tells it from others.
void setAccessibleName(wxWindow &control, const wxString &name);

/// The same for the list of file columns, whose entries tell which of them are in use.
void describeFileColumns(ListBoxSource &list, const wxString &name);

/// Has a screen reader announce the text of `control` whenever it is shown.
void announceWhenShown(wxWindow &control);

} // namespace columnimport
