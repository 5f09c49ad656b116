// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include <wx/dialog.h>
#include <wx/listbox.h>
#include <wx/listctrl.h>

using Names = std::vector<std::string>;

// The open dialog and its controls; for the user-interface thread.

bool isDialogOpen();
wxDialog &openDialog();
wxListBox &fileList();
wxListCtrl &matchList();

/// A control of the dialog, by its identifier.
wxWindow &controlOf(int id);
template <typename Control = wxWindow>
Control &control(int id) {
    return dynamic_cast<Control &>(controlOf(id));
}

// What a person can read in it; for a person's thread.

/// The texts of a column of the match list, and those of its rows that are shown in bold and in
/// italics.
Names matchTexts(int column = 0);
std::vector<int> boldRows();
std::vector<int> italicRows();

/// The rows of the match list that are marked, and those in the hover state.
std::vector<int> markedRows();
std::vector<int> hoverRows();

/// The texts of the list of file columns, and those of its entries that are shown as in use.
Names fileTexts();
std::vector<int> usedEntries();

/// The status line beside the options; empty if there is none.
std::string sentence();
