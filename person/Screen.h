// SPDX-License-Identifier: MIT

#pragma once

#include "person/Hand.h"

#include <functional>
#include <memory>
#include <optional>

#include <wx/gdicmn.h>

// What a person needs of the platform. Each platform has a file of its own with these functions.
// All but `makeHand` and `onUserInterface` are to be called on the user-interface thread.

/// Ends the program, from now on, when the platform complains of what the toolkit asks of it.
void endOnComplaints();

/// The hand for the screen that the dialogs are shown on.
std::unique_ptr<Hand> makeHand();

/// Runs `work` on the user-interface thread, behind all input that the screen has delivered so far,
/// and waits for it; what it throws is thrown here. To be called on any other thread.
void onUserInterface(const std::function<void()> &work);

/// Carries out what `onUserInterface` asks for while no event loop is running.
void handleEvents();

/// Whether the dialog is shown, takes keys, and has been given its place and size.
bool dialogStands();

/// Whether a program has a say in where its windows stand on this screen.
bool placesWindows();

/// The place and size of the dialog's window with its frame, as the screen has them. Where no
/// program has a say in the place, the place is any.
wxRect frameOfDialog();

/// Asks the dialog to close, as the window manager does for its close box.
void pressCloseBox();

/// Whether a drag out of the dialog is under way.
bool isDragRunning();

/// Where the drag that is under way was last over a place that takes its text, as a place in the
/// client area of the dialog.
std::optional<wxPoint> placeOfDrag();

/// Whether a row of the match list is shown as marked.
bool isShownAsMarked(int row);

/// Whether a check mark is shown before an entry of the list of file columns.
bool isShownAsUsed(int entry);
