// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

// NOLINTBEGIN(bugprone-reserved-identifier): GTK's names for them
using GdkDragContext = struct _GdkDragContext;
using GtkWidget = struct _GtkWidget;
// NOLINTEND(bugprone-reserved-identifier)
class wxDropSource;
class wxString;
class wxWindow;

namespace columnimport {

class WaylandPointer;

/// What one drag has beyond the toolkit's own while it runs: a label beside the pointer, and an end
/// also where the screen ignores it or the program that gets the drop hangs. The label keeps clear
/// of the row that the pointer is on, whose highlight and name say where the drop will go.
class RunningDrag {
public:
    /// To be made before `drag` begins, and to be kept until its end; `source` is the window that
    /// it begins in, `shown` the label's text.
    RunningDrag(wxDropSource &drag, const wxWindow &source, const wxString &shown);
    ~RunningDrag();
    RunningDrag(const RunningDrag &) = delete;
    RunningDrag &operator=(const RunningDrag &) = delete;

private:
    static int begin(void *self);
    void endIfIgnored();
    static void limitDrop(GdkDragContext *, int, void *self);
    static int endUnfinished(void *self);

    wxDropSource &m_drag;
    GtkWidget *m_label;
    int m_right; // of the label, from the pointer, in pixels
    int m_below;
    std::unique_ptr<WaylandPointer> m_pointer; // null if the screen is no Wayland one or has none
    GdkDragContext *m_context = nullptr;       // null until the drag runs
    unsigned m_due;                            // the call of `begin` or `endUnfinished`, or 0
    unsigned long m_failing;
};

} // namespace columnimport
