// SPDX-License-Identifier: MIT

#pragma once

class wxString;
class wxWindow;

namespace columnimport {

class ListBoxSource;

// Descriptions of single controls for screen readers. Each platform has a file of its own.

/// Gives `control` its name for screen readers.
void setAccessibleName(wxWindow &control, const wxString &name);

/// Names the list of file columns, and its entries with "in use" if they are.
void describeFileColumns(ListBoxSource &list, const wxString &name);

/// Lets screen readers announce the text of `control` each time it is shown.
void announceWhenShown(wxWindow &control);

} // namespace columnimport
