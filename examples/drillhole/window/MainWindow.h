// SPDX-License-Identifier: MIT

#pragma once

#include "examples/drillhole/window/ChoicesBar.h"
#include "examples/drillhole/window/DatabaseThread.h"
#include "examples/drillhole/window/ImportStory.h"
#include "examples/drillhole/window/PlanView.h"
#include "examples/drillhole/window/ReportPane.h"
#include "examples/drillhole/window/RowGrid.h"

#include <gtkmm/checkbutton.h>
#include <gtkmm/infobar.h>
#include <gtkmm/progressbar.h>
#include <gtkmm/radiobutton.h>
#include <gtkmm/window.h>

namespace drillhole {

/// The program's window: a table's rows, the collars in a plan, what came of the last import, and
/// the ways to the next one.
class MainWindow : public Gtk::Window {
public:
    /// @param reportFolder where the reports of refused rows go
    MainWindow(Settings &settings, const std::string &reportFolder);

    /// Opens the database of the drill holes, before anything else is done.
    ///
    /// @param isAttended  asks for another one, or for a password, where it can't be opened
    void open(const std::string &connection, bool isAttended);

    /// The database is open, or the user has given it up.
    sigc::signal<void> &signalOpened() { return m_signalOpened; }

    /// Chooses the table that is shown and imported into.
    void choose(const Table &table);

    /// Runs the dialog and then the import, which goes on after the call.
    void importFile(const std::string &path);

    /// The same for a table in another database.
    void importTable(const std::string &connection, const std::string &sourceTable);

    /// Lets the user choose a table in another database and then imports it.
    ///
    /// @param connection  where the choice begins; empty for the last source
    void chooseSourceTable(const std::string &connection);

    /// Every import's end, however it came.
    sigc::signal<void, const ImportStory &> &signalEnded() { return m_signalEnded; }

private:
    using Import = std::function<ImportOutcome(const Destination &, ImportProgress &)>;

    Gtk::Widget &createToolbar();
    Gtk::Widget &createBody();
    Gtk::Widget &createFaultBar();
    Gtk::Widget &createProgressLine();

    void chooseFile();
    void chooseDatabase(const std::string &message);
    void exportRefused();
    bool askFor(ImportStory &story, const std::function<std::optional<Match>()> &ask);
    void start(ImportStory story, Import import, std::optional<Replace> decided = {});
    bool agreesTo(const std::string &question);
    void end(const ImportStory &story);
    void setBusy(bool isBusy);
    bool showProgress();

    void ask(const DatabaseThread::Work &work, const std::function<void()> &done);
    void refresh(const Table *changed, bool isAtEnd); ///< null for all
    void showTable(bool isAtEnd);
    void showFault(const std::string &fault);
    bool on_delete_event(GdkEventAny *event) override;

    Settings &m_settings;
    std::string m_reportFolder;
    const Table *m_table;
    std::vector<std::size_t> m_counts; ///< rows of each table
    bool m_isBusy = false;
    std::shared_ptr<ImportProgress> m_progress;
    sigc::connection m_progressTimer;
    std::function<void()> m_cancel; ///< ends what the window waits for
    sigc::signal<void, const ImportStory &> m_signalEnded;
    sigc::signal<void> m_signalOpened;
    bool m_isAttended = false;

    std::vector<Gtk::RadioButton *> m_tableButtons;
    Gtk::Box m_toolbar;
    Gtk::CheckButton m_replace;
    ChoicesBar m_choices;
    Gtk::InfoBar m_faultBar;
    Gtk::Label m_fault;
    RowGrid m_grid;
    PlanView m_plan;
    ReportPane m_report;
    Gtk::Box m_progressLine;
    Gtk::ProgressBar m_progressBar;

    std::unique_ptr<DatabaseThread> m_source; // while its columns are asked for
    std::unique_ptr<DatabaseThread> m_thread;
};

} // namespace drillhole
