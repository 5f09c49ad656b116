// SPDX-License-Identifier: MIT

#pragma once

using GtkWidget = struct _GtkWidget; // NOLINT(bugprone-reserved-identifier): GTK's name for it

class wxDropSource;
class wxString;
class wxWindow;

namespace columnimport {

/// The small label that goes beside the pointer during one drag. It keeps clear of the row that the
/// pointer is on, whose highlight and name say where the drop will go.
class DragLabel {
public:
    /// To be made before `drag` begins; `source` is the window that it begins in.
    DragLabel(wxDropSource &drag, const wxWindow &source, const wxString &text);
    ~DragLabel();
    DragLabel(const DragLabel &) = delete;
    DragLabel &operator=(const DragLabel &) = delete;

private:
    static int show(void *self);

    wxDropSource &m_drag;
    GtkWidget *m_label;
    int m_right; // from the pointer, in pixels
    int m_below;
    unsigned m_showing; // the call of `show` that is due, or 0
    unsigned long m_failing;
};

} // namespace columnimport
