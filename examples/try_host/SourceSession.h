#pragma once

#include "examples/try_host/ImportResult.h"
#include "examples/try_host/Source.h"

#include <optional>

#include <gtk/gtk.h>
#include <wxImportCSVDialogPeer.h>

/// A source, and what a host keeps of it from one import to the next. A real host would keep this
/// in its settings; here it lasts as long as the program.
class SourceSession {
public:
    explicit SourceSession(Source source);

    const Source &source() const { return m_source; }
    const ImportResult &kept() const { return m_kept; }
    const std::optional<ImportResult> &lastResult() const { return m_lastResult; }

    /// Runs the dialog over the window. What it hands back is kept if the user pressed OK.
    const ImportResult &import(wxImportCSVDialogPeer &peer, GtkWidget *window);

    /// Goes back to the state before the first import.
    void forget();

private:
    Source m_source;
    ImportResult m_kept;
    std::optional<ImportResult> m_lastResult;
};
