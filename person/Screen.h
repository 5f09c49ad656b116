// SPDX-License-Identifier: MIT

#pragma once

#include "person/Hand.h"

#include <functional>
#include <memory>
#include <optional>

#include <wx/gdicmn.h>

// The platform's part of a person. Each platform has a file of its own with these functions. Call
// all but `makeHand` and `onUserInterface` on the user-interface thread.

/// From now on, ends the program when the platform complains about a call by the toolkit.
void abortOnWarnings();

/// The hand for the screen that the dialogs are shown on.
std::unique_ptr<Hand> makeHand();

/// Runs `work` on the user-interface thread after all input delivered so far, waits for it, and
/// rethrows its exceptions. To be called on any other thread.
void onUserInterface(const std::function<void()> &work);

/// Does the work of `onUserInterface` while no event loop is running.
void handleEvents();

/// From now on, two clicks within five seconds are a double click: a hand on a busy machine is
/// slow.
void allowSlowDoubleClicks();

/// Whether the dialog is shown, has the keyboard, and has its final place and size.
bool isDialogReady();

/// Whether programs place their own windows on this screen.
bool placesWindows();

/// The place and size of the dialog's frame on the screen. The place means nothing where programs
/// don't place their windows.
wxRect frameOfDialog();

/// Asks the dialog to close, as the window manager does for its close box.
void pressCloseBox();

/// Whether a drag out of the dialog is under way.
bool isDragRunning();

/// The last point, in the dialog's client area, where the present drag could have been dropped.
std::optional<wxPoint> placeOfDrag();

/// Whether a row of the match list is shown as marked.
bool isShownAsMarked(int row);

/// Whether a check mark is shown before an entry of the list of file columns.
bool isShownAsUsed(int entry);
