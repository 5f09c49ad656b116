#pragma once

#include "Person.h"

#include <functional>
#include <string>
#include <vector>

#include <wxImportCSVDialogPeer.h>

using Names = std::vector<std::string>;

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

    /// Shows the dialog for the file and has a person act on it, on another thread, from the moment
    /// when it stands. A person who gives up fails the test and leaves through Cancel. The run has
    /// a peer of its own unless it is given one.
    bool show(const std::function<void(Person &)> &act, wxImportCSVDialogPeer peer = {});

    /// The same for a table with these columns.
    bool showTable(const Names &tableColumns, const std::function<void(Person &)> &act);
};

/// What a person does who just presses the button.
void pressOk(Person &person);
void pressCancel(Person &person);

/// The texts of the match list's first column, and those of its rows that are shown in bold.
Names matchTexts();
std::vector<int> boldRows();

/// The rows of the match list that are marked, and those in the hover state.
std::vector<int> markedRows();
std::vector<int> hoverRows();

/// The texts of the list of file columns.
Names fileTexts();
