// SPDX-License-Identifier: MIT

#pragma once

#include "person/Person.h"
#include "person/openDialog.h"

#include <functional>
#include <string>

#include <wxImportCSVDialogPeer.h>

/// What a person does while a dialog is open, on a thread of its own.
using Steps = std::function<void(Person &)>;

/// Has a person take `steps` in the dialog that `show` opens, from the moment when it stands, and
/// returns what `show` returns. A person who throws leaves through Cancel, and that is thrown
/// here.
bool runWithPerson(const Steps &steps, const std::function<bool()> &show);

/// One modal run: what goes in, what a person does meanwhile, and what came out. The defaults are
/// those of a host that runs the dialog for the first time.
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

    /// Shows the dialog for the file. The run has a peer of its own unless it is given one.
    bool show(const Steps &steps, wxImportCSVDialogPeer peer = {});

    /// The same for a table with these columns.
    bool showTable(const Names &tableColumns, const Steps &steps);
};

/// What a person does who just presses the button.
void pressOk(Person &person);
void pressCancel(Person &person);
