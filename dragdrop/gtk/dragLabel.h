// SPDX-License-Identifier: MIT

#pragma once

using GtkWidget = struct _GtkWidget; // NOLINT(bugprone-reserved-identifier): GTK's name for it
class wxString;

namespace columnimport {

/// Makes the label beside the pointer of a drag. The caller owns a reference.
GtkWidget *makeDragLabel(const wxString &text);

} // namespace columnimport
