// SPDX-License-Identifier: MIT

#pragma once

#include "person/Person.h"
#include "person/openDialog.h"

#include <functional>
#include <string>

#include <wxImportCSVDialogPeer.h>

/// A person's steps while a dialog is open, on a thread of their own.
using Steps = std::function<void(Person &)>;

/// Has a person take `steps` in the dialog that `show` opens, once it is on the screen, and returns
/// the result of `show`. If a step throws, the person presses Cancel and the exception is thrown
/// here.
bool runWithPerson(const Steps &steps, const std::function<bool()> &show);

/// One modal run: its arguments, and its results afterwards. The defaults are those of a host that
/// runs the dialog for the first time.
struct DialogRun {
    columnimport::HostWindow owner = nullptr;
    std::string title = "Import";
    Names appColumns;
    std::string fileName;
    bool useSavedMatches = false;
    Names matches;
    char delimiter = ',';
    bool firstLineHeader = true;
    int width = 900;
    int height = 900;

    /// Shows the dialog for the file, with a peer of its own unless one is passed.
    bool show(const Steps &steps, wxImportCSVDialogPeer peer = {});

    /// The same for a table with these columns.
    bool showTable(const Names &tableColumns, const Steps &steps);

    /// Shows the dialog for the file without a person.
    bool showAlone(wxImportCSVDialogPeer peer = {});
};

/// The steps of a person who only presses the button.
void pressOk(Person &person);
void pressCancel(Person &person);
