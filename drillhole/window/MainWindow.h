// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/window/ChoicesBar.h"
#include "drillhole/window/DatabaseThread.h"
#include "drillhole/window/ImportRecord.h"
#include "drillhole/window/PlanView.h"
#include "drillhole/window/ReportPane.h"
#include "drillhole/window/RowGrid.h"

#include <gtkmm.h>

namespace drillhole {

/// The program's window: a table's rows, the collars in a plan, what came of the last import, and
/// the ways to the next one.
class MainWindow : public Gtk::ApplicationWindow {
public:
    /// @param reportFolder where the reports of refused rows go
    /// @param isAttended      asks for another database, or for a password, where one can't be
    ///                        opened, and about matches that are in doubt; otherwise those are
    ///                        faults
    /// @param acceptsGuesses  of required columns, where nobody is asked
    MainWindow(Settings &settings, const std::string &reportFolder, bool isAttended,
               bool acceptsGuesses);

    /// Opens the database of the drill holes, before anything else is done.
    void open(const std::string &connection);

    /// The next thing can be done: an import has ended, however it came; or a database is open or
    /// given up, and there is none to tell of.
    sigc::signal<void, const ImportRecord *> &signalAtRest() { return m_signalAtRest; }

    /// Runs the dialog and then the import, which goes on after the call.
    ///
    /// @param source  if it is neither a file nor names a table, the user chooses one, and another
    ///                database if need be
    /// @param table   where to, which is shown from then on; null for the one that is shown
    void importFrom(const ImportSource &source, const Table *table = nullptr);

private:
    Gtk::Widget &createToolbar();
    Gtk::Widget &createMenuButton();

    RowGrid &grid(); ///< of the table that is shown
    void chooseFile();
    void chooseDatabase(const std::string &message);
    void exportRefused();

    // An import, from its begin to its end.
    void match(const std::vector<std::string> &columns);
    bool settlesDoubts(Match &match);
    bool agreesTo(const std::string &question, const char *no, const char *yes);
    void start(Replace replace);
    void cancel();
    void end();

    void showFault(const std::string &fault);
    bool on_delete_event(GdkEventAny *event) override;

    Settings &m_settings;
    std::string m_reportFolder;
    bool m_isAttended;
    bool m_acceptsGuesses;
    bool m_isOpen = false;                      ///< the database is
    ImportRecord m_record;                      ///< of the import that runs, or of the last one
    std::shared_ptr<ImportProgress> m_progress; ///< null if no rows are being imported
    sigc::signal<void, const ImportRecord *> m_signalAtRest;
    DatabaseThread m_holes;
    DatabaseThread m_source; ///< is asked for the columns of a table

    Gtk::Box m_controls; ///< insensitive during an import
    Gtk::CheckButton m_replace;
    ChoicesBar m_choices;
    Glib::RefPtr<Gio::SimpleAction> m_export;
    Gtk::InfoBar m_faultBar;
    Gtk::Label m_fault;
    Gtk::Stack m_tables; ///< a RowGrid for each
    PlanView m_plan;
    ReportPane m_report;
    Gtk::Box m_progressLine;
    Gtk::ProgressBar m_progressBar;
};

} // namespace drillhole
