#include "examples/try_host/SourceSession.h"

#include <utility>

namespace {

constexpr int dialogWidth = 900;
constexpr int fileDialogHeight = 810;
constexpr int tableDialogHeight = 590;

} // namespace

SourceSession::SourceSession(Source source) : m_source(std::move(source)) {
    forget();
}

const ImportResult &SourceSession::import(wxImportCSVDialogPeer &peer, GtkWidget *window) {
    // The dialog writes its outcome after Cancel too, so it gets a copy of what is kept.
    ImportResult run = m_kept;
    // With no name among the saved matches a proposal is made, as it should be the first time.
    bool useSavedMatches = true;
    const std::string title = "Import " + m_source.title;
    if (m_source.isTable()) {
        run.ok = peer.showWindow(window, title, m_source.appColumns, m_source.tableColumns,
                                 m_source.fileName, &useSavedMatches, &run.matches, dialogWidth,
                                 tableDialogHeight);
    } else {
        run.ok = peer.showWindow(window, title, m_source.appColumns, m_source.fileName,
                                 &useSavedMatches, &run.matches, &run.delimiter,
                                 &run.firstLineHoldsTitles, dialogWidth, fileDialogHeight);
    }
    m_lastResult = run;

    if (run.ok) {
        // Without titles the matches are "Column1" and so on, which no later run can show again.
        if (!run.firstLineHoldsTitles) {
            run.matches = m_kept.matches;
        }
        m_kept = std::move(run);
    }
    return *m_lastResult;
}

void SourceSession::forget() {
    m_kept = {false, {}, m_source.delimiter, m_source.firstLineHoldsTitles};
    m_lastResult.reset();
}
