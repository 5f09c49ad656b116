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

/// Adds a label beside the pointer to the toolkit's drag, and ends the drag if the compositor
/// ignores it or the receiving program hangs. The label leaves the row under the pointer visible,
/// whose highlight shows where the drop will go.
class RunningDrag {
public:
    /// Create it before `drag` begins, and keep it until the drag ends. `source` is the window that
    /// the drag starts in, `shown` the label's text.
    RunningDrag(wxDropSource &drag, const wxWindow &source, const wxString &shown);
    ~RunningDrag();
    RunningDrag(const RunningDrag &) = delete;
    RunningDrag &operator=(const RunningDrag &) = delete;

private:
    /// Makes the label. The caller owns a reference.
    static GtkWidget *makeLabel(const wxString &text);

    static int begin(void *self);
    void endIfIgnored();
    static void limitDrop(GdkDragContext *, int, void *self);
    static int endUnfinished(void *self);

    wxDropSource &m_drag;
    GtkWidget *m_label;
    int m_right; // of the label, from the pointer, in pixels
    int m_below;
    std::unique_ptr<WaylandPointer> m_pointer; // null without Wayland or a pointer
    GdkDragContext *m_context = nullptr;       // null until the drag runs
    unsigned m_due;                            // the call of `begin` or `endUnfinished`, or 0
    unsigned long m_failing;
};

} // namespace columnimport
