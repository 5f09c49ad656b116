// SPDX-License-Identifier: MIT

#include "drillhole/window/MainWindow.h"

#include "drillhole/database/connection.h"
#include "drillhole/database/sourceTables.h"
#include "drillhole/rows/Fault.h"
#include "drillhole/rows/text.h"
#include "drillhole/window/MatchDialog.h"
#include "drillhole/window/SourceDialog.h"

namespace drillhole {

namespace {

constexpr int spacing = 8;
constexpr unsigned int progressInterval = 50; // milliseconds
constexpr unsigned int patience = 1000;       // milliseconds: for a cancelled import to end

template <typename... Widgets>
void addTo(Gtk::Box &box, Widgets &...widgets) {
    (box.add(widgets), ...);
}

} // namespace

MainWindow::MainWindow(Settings &settings, const std::string &reportFolder, bool isAttended,
                       bool acceptsGuesses)
    : m_settings(settings), m_reportFolder(reportFolder), m_isAttended(isAttended),
      m_acceptsGuesses(acceptsGuesses),
      m_holes(openHoles, [this](const std::string &fault) { showFault(fault); }),
      m_source(openSource), m_controls(Gtk::ORIENTATION_VERTICAL, spacing),
      m_replace("_Replace the rows that are there", true), m_choices(settings),
      m_progressLine(Gtk::ORIENTATION_HORIZONTAL, spacing) {
    set_default_size(1120, 720);
    addTo(m_controls, createToolbar(), m_choices);

    m_faultBar.set_message_type(Gtk::MESSAGE_ERROR);
    m_faultBar.set_show_close_button();
    m_faultBar.signal_response().connect([this](int) { m_faultBar.hide(); });
    m_fault.set_line_wrap();
    m_fault.set_xalign(0);
    m_fault.set_selectable();
    dynamic_cast<Gtk::Container *>(m_faultBar.get_content_area())->add(m_fault);

    auto *frame = Gtk::make_managed<Gtk::Frame>();
    frame->add(m_plan);
    auto *both = Gtk::make_managed<Gtk::Paned>(Gtk::ORIENTATION_HORIZONTAL);
    both->pack1(m_tables, true, false);
    both->pack2(*frame, true, false);
    both->set_position(660);
    both->set_vexpand();

    auto *cancelButton = Gtk::make_managed<Gtk::Button>("_Cancel", true);
    cancelButton->signal_clicked().connect([this] { cancel(); });
    m_progressBar.set_show_text();
    m_progressBar.set_valign(Gtk::ALIGN_CENTER);
    m_progressBar.set_hexpand();
    addTo(m_progressLine, m_progressBar, *cancelButton);

    auto *all = Gtk::make_managed<Gtk::Box>(Gtk::ORIENTATION_VERTICAL, spacing);
    all->property_margin() = 12;
    addTo(*all, m_controls, m_faultBar, *both, m_report, m_progressLine);
    add(*all);
    show_all_children();
    m_faultBar.hide();
    m_progressLine.hide();
}

void MainWindow::open(const std::string &connection) {
    set_title("Drill holes in " + placeOf(connection));
    m_faultBar.hide();
    m_isOpen = false;
    m_holes.use(connection);
    m_holes.run(collarsOf, [this](const std::vector<Collar> &collars, const std::string &fault) {
        if (!fault.empty()) {
            chooseDatabase(fault);
            return;
        }
        m_isOpen = true;
        m_plan.show(collars);
        for (Gtk::Widget *each : m_tables.get_children()) {
            dynamic_cast<RowGrid &>(*each).refresh(false);
        }
        m_signalAtRest.emit(nullptr);
    });
}

void MainWindow::chooseDatabase(const std::string &message) {
    std::optional<ImportSource> chosen;
    if (m_isOpen || m_isAttended) {
        chosen = chooseSource(*this, SourceKind::holes, m_holes.connection(), message);
    }
    if (chosen) {
        open(chosen->connection);
    } else if (!m_isOpen) {
        showFault(message);
        m_signalAtRest.emit(nullptr);
    }
}

RowGrid &MainWindow::grid() {
    return dynamic_cast<RowGrid &>(*m_tables.get_visible_child());
}

void MainWindow::chooseFile() {
    const auto chooser = Gtk::FileChooserNative::create("Choose a File to Import", *this,
                                                        Gtk::FILE_CHOOSER_ACTION_OPEN, {}, {});
    if (chooser->run() == Gtk::RESPONSE_ACCEPT) {
        importFrom({chooser->get_filename(), {}, {}});
    }
}

void MainWindow::importFrom(const ImportSource &source, const Table *table) {
    if (table != nullptr) {
        m_tables.set_visible_child(table->name);
    }
    m_faultBar.hide();
    m_controls.set_sensitive(false);
    m_record = {&grid().table(), source, {}, {}, {}};
    if (!source.path.empty()) {
        match({});
        return;
    }
    if (source.table.empty()) {
        const auto chosen = chooseSource(*this, SourceKind::table, source.connection,
                                         "Choose an SQLite file, or type how to reach a database, "
                                         "and connect to see its tables.");
        if (!chosen) {
            end();
            return;
        }
        m_settings.keep("source", "connection", {withoutPassword(chosen->connection)});
        m_record.source = *chosen;
    }
    m_progressBar.set_fraction(0);
    m_progressBar.set_text("Asking for the columns");
    m_progressLine.show();
    m_source.use(m_record.source.connection);
    m_source.run(
        [name = m_record.source.table](soci::session &database) {
            return columnsOf(database, nameInQuery(database, name)).names;
        },
        [this](const std::vector<std::string> &columns, const std::string &fault) {
            m_progressLine.hide();
            m_record.fault = fault;
            if (fault.empty()) {
                match(columns);
            } else {
                end();
            }
        });
}

void MainWindow::match(const std::vector<std::string> &columns) {
    try {
        m_record.match = matchColumns(*this, m_settings, *m_record.table, m_record.source, columns);
        if (m_record.match && !settlesDoubts(*m_record.match)) {
            m_record.match.reset();
        }
    } catch (const Fault &fault) {
        m_record.fault = fault.what();
    } catch (const Glib::Error &error) { // the folder for temporary files is full, say
        m_record.fault = error.what();
    }
    if (m_record.match && m_record.fault.empty()) {
        keepMatch(m_settings, *m_record.table, m_record.source, *m_record.match);
        start(m_replace.get_active() ? Replace::ifAgreed : Replace::no);
    } else {
        end();
    }
}

/// Whether the rows are to be imported so. Throws a Fault if nobody is there to be asked.
bool MainWindow::settlesDoubts(Match &match) {
    const std::string guesses = requiredGuesses(*m_record.table, match);
    if (!m_isAttended && !m_acceptsGuesses && !guesses.empty()) {
        throw Fault("Only similar names were found: " + guesses +
                    ". Give --accept-guesses to import it so.");
    }
    const std::string doubts = doubtsAbout(*m_record.table, match);
    if (!m_isAttended && !doubts.empty()) {
        throw Fault(doubts + "Import it without --then-quit to be asked.");
    }
    match.factors = unitFactors(*m_record.table, match);
    return doubts.empty() || agreesTo(doubts + "Import it so?", "_Don't Import", "_Import");
}

bool MainWindow::agreesTo(const std::string &question, const char *no, const char *yes) {
    Gtk::MessageDialog dialog(*this, question, false, Gtk::MESSAGE_QUESTION, Gtk::BUTTONS_NONE,
                              true);
    dialog.add_button(no, Gtk::RESPONSE_CANCEL);
    dialog.add_button(yes, Gtk::RESPONSE_OK);
    return dialog.run() == Gtk::RESPONSE_OK;
}

void MainWindow::start(Replace replace) {
    m_progress = std::make_shared<ImportProgress>();
    m_progressLine.show();
    const auto showProgress = [this, progress = m_progress] {
        m_progressBar.set_fraction(progress->share);
        m_progressBar.set_text(countOf(progress->rows, "row"));
        return progress == m_progress; // or the import has ended
    };
    Glib::signal_timeout().connect(showProgress, progressInterval);
    const std::string report =
        Glib::build_filename(m_reportFolder, "refused_" + m_record.table->name);
    m_holes.run(
        [=, record = m_record, choices = m_choices.choices(),
         progress = m_progress](soci::session &holes) {
            const Destination destination{holes, *record.table, report, replace, choices};
            const ImportSource &source = record.source;
            return source.path.empty()
                       ? drillhole::importTable(destination, source.connection, source.table,
                                                *record.match, *progress)
                       : drillhole::importFile(destination, source.path, *record.match, *progress);
        },
        [this](const ImportOutcome &outcome, const std::string &fault) {
            m_record.outcome = outcome;
            m_record.fault = fault;
            if (!outcome.question.empty() &&
                agreesTo(outcome.question, "_Keep What Is There", "_Replace")) {
                start(Replace::anyway);
            } else {
                end();
            }
        });
}

void MainWindow::cancel() {
    if (!m_progress) { // the columns are still asked for
        m_source.drop();
        end();
        return;
    }
    m_progress->isCancelled = true;
    const auto giveUp = [this, progress = m_progress] {
        if (progress != m_progress) {
            return; // the import has ended
        }
        m_record.fault =
            progress->isCommitting
                ? "The database was silent when its rows were to be kept. Whether they are is seen "
                  "once it answers: look there before you import them again."
                : "The database is silent, and the connection was given up. Nothing was imported.";
        m_holes.use(m_holes.connection()); // the next thing that is asked connects anew
        end();
    };
    Glib::signal_timeout().connect_once(giveUp, patience);
}

void MainWindow::end() {
    m_progress.reset();
    m_progressLine.hide();
    m_controls.set_sensitive();
    if (!m_record.fault.empty()) {
        showFault(m_record.fault);
    } else if (m_record.match) {
        m_report.show(m_record);
        m_export->set_enabled(!m_report.file().empty());
        if (!m_settings.complaint().empty()) {
            showFault(m_settings.complaint());
        }
    }
    if (m_record.isDone()) {
        m_replace.set_active(false);
        grid().refresh(!m_record.outcome.replaces); // the new rows stand behind the others
        m_holes.ask(collarsOf,
                    [this](const std::vector<Collar> &collars) { m_plan.show(collars); });
    }
    m_signalAtRest.emit(&m_record);
}

void MainWindow::exportRefused() {
    const auto chooser = Gtk::FileChooserNative::create("Export Refused Rows", *this,
                                                        Gtk::FILE_CHOOSER_ACTION_SAVE, {}, {});
    chooser->set_do_overwrite_confirmation();
    chooser->set_current_name(Glib::path_get_basename(m_report.file()));
    if (chooser->run() == Gtk::RESPONSE_ACCEPT) {
        try {
            Gio::File::create_for_path(m_report.file())
                ->copy(chooser->get_file(), Gio::FILE_COPY_OVERWRITE);
        } catch (const Glib::Error &error) {
            showFault("The refused rows can't be written there. " + error.what());
        }
    }
}

void MainWindow::showFault(const std::string &fault) {
    m_fault.set_text(fault);
    m_faultBar.show();
}

bool MainWindow::on_delete_event(GdkEventAny *) {
    const bool isRunning = m_progress && !m_progress->isCancelled;
    if (isRunning) {
        showFault("An import is running. Wait for its end, or cancel it, before you close.");
    }
    return isRunning;
}

Gtk::Widget &MainWindow::createToolbar() {
    for (const Table &table : holeTables()) {
        Gtk::make_managed<RowGrid>(m_tables, table, m_holes);
    }
    m_tables.property_visible_child().signal_changed().connect(
        [this] { m_choices.show(grid().table()); });
    auto *tables = Gtk::make_managed<Gtk::StackSwitcher>();
    tables->set_stack(m_tables);
    tables->set_hexpand();
    tables->set_halign(Gtk::ALIGN_START);
    auto *file = Gtk::make_managed<Gtk::Button>("Import _File...", true);
    file->get_style_context()->add_class("suggested-action");
    file->signal_clicked().connect([this] { chooseFile(); });
    auto *source = Gtk::make_managed<Gtk::Button>("Import _Table...", true);
    source->signal_clicked().connect([this] {
        importFrom({{}, m_settings.text("source", "connection"), {}});
    });

    auto *toolbar = Gtk::make_managed<Gtk::Box>(Gtk::ORIENTATION_HORIZONTAL, spacing);
    addTo(*toolbar, *tables, m_replace, *source, *file, createMenuButton());
    return *toolbar;
}

Gtk::Widget &MainWindow::createMenuButton() {
    add_action("open", [this] {
        chooseDatabase("Choose an SQLite file, or type how to reach a database; one that is empty "
                       "gets the tables of drill holes.");
    });
    m_export = add_action("export", [this] { exportRefused(); });
    m_export->set_enabled(false);
    const auto menu = Gio::Menu::create();
    menu->append("_Open Another Database...", "win.open");
    menu->append("_Export Refused Rows...", "win.export");
    auto *button = Gtk::make_managed<Gtk::MenuButton>();
    button->set_image_from_icon_name("open-menu-symbolic");
    button->set_tooltip_text("More");
    button->set_use_popover(false);
    button->set_menu_model(menu);
    return *button;
}

} // namespace drillhole
