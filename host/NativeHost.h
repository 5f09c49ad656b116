#pragma once

#include "HostWindow.h"

class wxDialog;
class wxWindow;

namespace columnimport {

// What the host's side of a run needs of the platform. Each platform has a file of its own.

/// Sets the toolkit up for the process, with a new application object; repeated calls only replace
/// that object. Without a display it does nothing.
void setUpToolkit();

/// Whether the toolkit stands and has a display.
bool isToolkitSetUp();

/// The window of the host that can own a dialog: its top-level, or null if it has none.
HostWindow ownerOf(HostWindow hostWindow);

/// Gives `standIn`, which has no native window of its own, the host's native window to read.
/// `detach` takes it back; nothing that happens to `standIn` afterwards reaches the host's window.
void attach(wxWindow &standIn, HostWindow hostWindow);
void detach(wxWindow &standIn);

/// Runs `dialog` modally at the size and position that it was given, and returns the code that it
/// ended with. The host's own event loops are running afterwards as they were before.
int showModal(wxDialog &dialog);

} // namespace columnimport
