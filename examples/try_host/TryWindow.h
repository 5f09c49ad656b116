#pragma once

#include "examples/try_host/ResultView.h"
#include "examples/try_host/SourceSession.h"

#include <vector>

#include <gtk/gtk.h>

/// The host's window: the sources on the left, what came of the chosen one on the right. The
/// program ends when it is closed.
class TryWindow {
public:
    TryWindow(wxImportCSVDialogPeer &peer, const std::vector<Source> &sources);
    TryWindow(const TryWindow &) = delete;
    TryWindow &operator=(const TryWindow &) = delete;

    /// The source that is chosen in the list.
    SourceSession &chosen();

    /// Imports the chosen source and shows what came back.
    const ImportResult &importChosen();

    /// Forgets what is kept of the chosen source.
    void forgetChosen();

    /// Lets the user pick a file, and adds it to the list.
    void openFile();

    /// Shows what is known of the chosen source.
    void showChosen();

private:
    GtkWidget *createSourceList();
    GtkWidget *createButtons();
    void add(const Source &source);

    wxImportCSVDialogPeer &m_peer;
    std::vector<SourceSession> m_sessions;
    GtkWidget *m_window;
    GtkListBox *m_list;
    GtkWidget *m_forget;
    ResultView m_result;
};
