// SPDX-License-Identifier: MIT

#pragma once

#include "HostWindow.h"
#include "columnimport_export.h"

#include <cstdint>
#include <string>
#include <vector>

/// The entry point for a host that does not use the library's toolkit.
///
/// Construct one before the first run, then call `showWindow` once per import. Call both on the
/// host's user-interface thread. A peer has no state: any number may exist, and destroying one ends
/// nothing. The host keeps what the next run needs in its own variables:
///
///     wxImportCSVDialogPeer peer;
///     bool useSaved = true, firstLineHeader = true;
///     char delimiter = ',';
///     std::vector<std::string> matches; // none yet: a proposal is made
///     if (peer.showWindow(GTK_WIDGET(window), "Import", {"holename", "x", "dip"}, "collar.csv",
///                         &useSaved, &matches, &delimiter, &firstLineHeader, 900, 900)) {
///         // matches == {"BHID", "Easting", ""}: one entry per application column
///     }
class COLUMNIMPORT_EXPORT wxImportCSVDialogPeer {
public:
    /// Sets the toolkit up for the whole process. Without a display, does nothing and reports
    /// nothing; `showWindow` then returns false, and a peer made later tries again.
    wxImportCSVDialogPeer();

    /// Does nothing: the toolkit stays set up for later runs.
    ~wxImportCSVDialogPeer();

    /// Changes nothing.
    /// @param other any peer
    /// @return this peer
    wxImportCSVDialogPeer &operator=(const wxImportCSVDialogPeer &other);

    /// Makes a peer like any other.
    wxImportCSVDialogPeer(const wxImportCSVDialogPeer &) = default;

    /// Shows the dialog for a delimited text file over the host's window, modally, and blocks until
    /// the user dismisses it.
    ///
    /// Names are bytes and come back as such. The dialog shows them as UTF-8 if they are valid,
    /// else in the process's locale, else as Latin-1. The pointers must not be null and must stay
    /// valid for the call. All outputs are written however the dialog ended; a host that wants its
    /// earlier values after a Cancel keeps a copy.
    ///
    /// @param hostWindow       the host's window; null opens the dialog without an owner
    /// @param title            text of the title bar
    /// @param appColumns       the application columns, in the host's order
    /// @param fileName         path of the file, UTF-8; one that can't be read gives empty lists
    /// @param useSavedMatches  in: whether to show `savedMatches` instead of a new proposal
    /// @param savedMatches     in: for each application column the name of a file column, or an
    ///                         empty string; more entries than application columns are dropped.
    ///                         out: the matches as the dialog showed them at its end, an empty
    ///                         string where there is none
    /// @param delimiter        in and out: the field delimiter, one byte taken literally
    /// @param firstLineHeader  in and out: whether the first line holds titles. If false at the
    ///                         end, the matches are positional names such as "Column1"
    /// @param width, height    size of the dialog's frame in pixels; its position is 100, 100. The
    ///                         controls keep their sizes, and a frame too small cuts them off. On a
    ///                         screen that ends above the buttons, both lists are lower
    /// @return true exactly if the user pressed OK. False with all variables unchanged if the
    ///         dialog could not be shown: there is no display, no peer was ever made, or a run is
    ///         open already
    bool showWindow(columnimport::HostWindow hostWindow, std::string title,
                    std::vector<std::string> appColumns, std::string fileName,
                    bool *useSavedMatches, std::vector<std::string> *savedMatches, char *delimiter,
                    bool *firstLineHeader, std::int32_t width, std::int32_t height);

    /// Shows the dialog for a database table whose column names the host passes in. No file and no
    /// database is opened. Everything else is as in the other overload, except for three arguments,
    /// all of them input:
    ///
    ///  - `fileSchema`: the columns of the table, in its order.
    ///  - `fileName`: the name of the source; nothing reads it.
    ///  - `useSavedMatches`: true shows the table's names, with `savedMatches` if they hold a name
    ///    and otherwise with a proposal; false pairs the columns by position, and the matches come
    ///    back as "Column1", "Column2" and so on.
    bool showWindow(columnimport::HostWindow hostWindow, std::string title,
                    std::vector<std::string> appColumns, std::vector<std::string> fileSchema,
                    std::string fileName, bool *useSavedMatches,
                    std::vector<std::string> *savedMatches, std::int32_t width,
                    std::int32_t height);
};
