// SPDX-License-Identifier: MIT

#include "examples/drillhole/window/MainWindow.h"

#include "examples/drillhole/database/connection.h"
#include "examples/drillhole/database/sourceTables.h"
#include "examples/drillhole/rows/Fault.h"
#include "examples/drillhole/rows/text.h"
#include "examples/drillhole/window/MatchDialog.h"
#include "examples/drillhole/window/SourceDialog.h"

#include <utility>

#include <giomm/file.h>
#include <glibmm/convert.h>
#include <glibmm/main.h>
#include <glibmm/miscutils.h>
#include <gtkmm/filechoosernative.h>
#include <gtkmm/frame.h>
#include <gtkmm/menu.h>
#include <gtkmm/menubutton.h>
#include <gtkmm/messagedialog.h>
#include <gtkmm/paned.h>

namespace drillhole {

namespace {

constexpr int spacing = 8;
constexpr unsigned int progressInterval = 50; // milliseconds

} // namespace

MainWindow::MainWindow(Settings &settings, const std::string &reportFolder)
    : m_settings(settings), m_reportFolder(reportFolder), m_table(&holeTables().front()),
      m_toolbar(Gtk::ORIENTATION_HORIZONTAL, spacing),
      m_replace("_Replace the rows that are there", true), m_choices(settings),
      m_grid([this](auto work, auto done) { ask(work, done); }),
      m_progressLine(Gtk::ORIENTATION_HORIZONTAL, spacing) {
    set_default_size(1120, 720);
    auto *all = Gtk::make_managed<Gtk::Box>(Gtk::ORIENTATION_VERTICAL, spacing);
    all->property_margin() = 12;
    all->pack_start(createToolbar(), Gtk::PACK_SHRINK);
    all->pack_start(m_choices, Gtk::PACK_SHRINK);
    all->pack_start(createFaultBar(), Gtk::PACK_SHRINK);
    auto *body = Gtk::make_managed<Gtk::Paned>(Gtk::ORIENTATION_VERTICAL);
    body->pack1(createBody(), true, false);
    body->pack2(m_report, false, false);
    all->pack_start(*body, Gtk::PACK_EXPAND_WIDGET);
    all->pack_start(createProgressLine(), Gtk::PACK_SHRINK);
    add(*all);
    m_choices.show(*m_table);
    show_all_children();
}

void MainWindow::open(const std::string &connection, bool isAttended) {
    set_title("Drill holes in " + placeOf(connection));
    m_faultBar.hide();
    m_isAttended = isAttended;
    m_counts.clear();
    m_thread = std::make_unique<DatabaseThread>(connection, openHoles);
    refresh(nullptr, false);
}

void MainWindow::chooseDatabase(const std::string &message) {
    std::optional<SourceTable> chosen;
    {
        SourceDialog dialog(*this, SourceDialog::Choice::holes, m_thread->connection(), message);
        chosen = dialog.choose();
    }
    if (chosen) {
        open(chosen->connection, true);
    } else if (m_counts.empty()) {
        showFault(message);
        m_signalOpened.emit();
    }
}

void MainWindow::choose(const Table &table) {
    for (std::size_t i = 0; i < m_tableButtons.size(); ++i) {
        if (&holeTables()[i] == &table) {
            m_tableButtons[i]->set_active();
        }
    }
}

void MainWindow::importFile(const std::string &path) {
    if (m_isBusy) {
        return;
    }
    m_faultBar.hide();
    ImportStory story;
    story.table = m_table;
    story.source = Glib::filename_display_basename(path);
    if (askFor(story, [&] { return matchFile(*this, m_settings, *m_table, path); })) {
        start(story, [path, match = story.match](const Destination &destination,
                                                 ImportProgress &progress) {
            return drillhole::importFile(destination, path, match, progress);
        });
    }
}

bool MainWindow::askFor(ImportStory &story, const std::function<std::optional<Match>()> &ask) {
    try {
        const std::optional<Match> match = story.fault.empty() ? ask() : std::nullopt;
        story.isConfirmed = match.has_value();
        story.match = match.value_or(Match());
    } catch (const Fault &fault) {
        story.fault = fault.what();
    }
    if (!story.isConfirmed) {
        end(story);
    }
    return story.isConfirmed;
}

void MainWindow::importTable(const std::string &connection, const std::string &sourceTable) {
    if (m_isBusy) {
        return;
    }
    m_faultBar.hide();
    ImportStory story;
    story.table = m_table;
    story.source = sourceTable;
    const auto columns = std::make_shared<std::vector<std::string>>();
    setBusy(true);
    m_progressBar.set_fraction(0);
    m_progressBar.set_text("Asking for the columns");
    m_progressLine.show();
    m_cancel = [this, story] {
        m_source.reset();
        end(story);
    };
    m_source = std::make_unique<DatabaseThread>(connection, openSource);
    m_source->run(
        [sourceTable, columns](soci::session &source) {
            *columns = columnNames(source, nameInQuery(source, sourceTable));
        },
        [this, story, connection, columns](const std::string &fault) mutable {
            story.fault = fault;
            m_cancel = nullptr;
            m_progressLine.hide();
            if (askFor(story, [&] {
                    return matchTable(*this, m_settings, *story.table, story.source, *columns);
                })) {
                start(story, [connection, table = story.source, match = story.match](
                                 const Destination &destination, ImportProgress &progress) {
                    return drillhole::importTable(destination, connection, table, match, progress);
                });
            }
        });
}

void MainWindow::start(ImportStory story, Import import, std::optional<Replace> decided) {
    const auto progress = std::make_shared<ImportProgress>();
    const auto outcome = std::make_shared<ImportOutcome>();
    m_progress = progress;
    m_cancel = [progress] { progress->isCancelled = true; };
    m_progressTimer =
        Glib::signal_timeout().connect([this] { return showProgress(); }, progressInterval);
    setBusy(true);
    m_progressLine.show();
    const std::string report =
        Glib::build_filename(m_reportFolder, "refused_" + story.table->name + ".csv");
    const Replace replace =
        decided.value_or(m_replace.get_active() ? Replace::ifNothingIsLost : Replace::no);
    const ValueChoices choices = m_settings.choices(*story.table);
    m_thread->run(
        [=, table = story.table](soci::session &holes) {
            *outcome = import({holes, *table, report, replace, choices}, *progress);
        },
        [this, story, outcome, import](const std::string &fault) mutable {
            story.outcome = *outcome;
            story.fault = fault;
            if (!outcome->question.empty() && agreesTo(outcome->question)) {
                start(story, import, Replace::anyway);
            } else {
                end(story);
            }
        });
}

bool MainWindow::agreesTo(const std::string &question) {
    Gtk::MessageDialog dialog(*this, question, false, Gtk::MESSAGE_QUESTION, Gtk::BUTTONS_NONE,
                              true);
    dialog.add_button("_Keep What Is There", Gtk::RESPONSE_CANCEL);
    dialog.add_button("_Replace", Gtk::RESPONSE_OK);
    return dialog.run() == Gtk::RESPONSE_OK;
}

void MainWindow::end(const ImportStory &story) {
    m_progressTimer.disconnect();
    m_progress.reset();
    m_progressLine.hide();
    setBusy(false);
    if (!story.fault.empty()) {
        showFault(story.fault);
    } else if (story.isConfirmed) {
        m_report.show(story);
        if (!m_settings.complaint().empty()) {
            showFault(m_settings.complaint());
        }
    }
    if (story.isDone()) {
        m_replace.set_active(false);
        refresh(story.table, !story.outcome.replaces); // the new rows stand behind the others
    }
    m_signalEnded.emit(story);
}

void MainWindow::setBusy(bool isBusy) {
    m_isBusy = isBusy;
    m_toolbar.set_sensitive(!isBusy);
}

bool MainWindow::showProgress() {
    m_progressBar.set_fraction(m_progress->share);
    m_progressBar.set_text(countOf(m_progress->rows, "row"));
    return true;
}

void MainWindow::ask(const DatabaseThread::Work &work, const std::function<void()> &done) {
    m_thread->run(work, [this, done](const std::string &fault) {
        if (fault.empty()) {
            done();
        } else {
            showFault(fault);
        }
    });
}

void MainWindow::refresh(const Table *changed, bool isAtEnd) {
    const auto counts = std::make_shared<std::vector<std::size_t>>(m_counts);
    const auto collars = std::make_shared<std::vector<Collar>>();
    const bool hasNewCollars = changed == nullptr || changed->namesHoles;
    m_thread->run(
        [counts, collars, changed, hasNewCollars](soci::session &holes) {
            counts->resize(holeTables().size());
            for (std::size_t i = 0; i < counts->size(); ++i) {
                if (changed == nullptr || changed == &holeTables()[i]) {
                    (*counts)[i] = rowCount(holes, holeTables()[i]);
                }
            }
            if (hasNewCollars) {
                *collars = collarsOf(holes);
            }
        },
        [this, counts, collars, hasNewCollars, isAtEnd](const std::string &fault) {
            if (!fault.empty()) {
                if (m_counts.empty() && m_isAttended) {
                    chooseDatabase(fault);
                    return;
                }
                showFault(fault);
                m_signalOpened.emit();
                return;
            }
            const bool isNew = m_counts.empty();
            m_counts = *counts;
            for (std::size_t i = 0; i < m_counts.size(); ++i) {
                m_tableButtons[i]->set_label(holeTables()[i].title + " (" + grouped(m_counts[i]) +
                                             ')');
            }
            if (hasNewCollars) {
                m_plan.show(*collars);
            }
            showTable(isAtEnd);
            if (isNew) {
                m_signalOpened.emit();
            }
        });
}

void MainWindow::showTable(bool isAtEnd) {
    if (!m_counts.empty()) {
        m_grid.show(*m_table, m_counts[static_cast<std::size_t>(m_table - holeTables().data())],
                    isAtEnd);
    }
}

void MainWindow::chooseFile() {
    const auto chooser = Gtk::FileChooserNative::create("Choose a File to Import", *this,
                                                        Gtk::FILE_CHOOSER_ACTION_OPEN, {}, {});
    if (chooser->run() == Gtk::RESPONSE_ACCEPT) {
        importFile(chooser->get_filename());
    }
}

void MainWindow::chooseSourceTable(const std::string &connection) {
    std::optional<SourceTable> chosen;
    {
        SourceDialog dialog(*this, SourceDialog::Choice::table,
                            connection.empty() ? m_settings.source() : connection,
                            "Choose an SQLite file, or type how to reach a database, and connect "
                            "to see its tables.");
        chosen = dialog.choose();
    }
    if (chosen) {
        m_settings.keepSource(chosen->connection);
        importTable(chosen->connection, chosen->name);
    } else {
        ImportStory story;
        story.table = m_table;
        story.source = "nothing";
        end(story);
    }
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
    auto *tables = Gtk::make_managed<Gtk::Box>();
    tables->get_style_context()->add_class("linked");
    Gtk::RadioButton::Group group;
    for (const Table &table : holeTables()) {
        auto *button = Gtk::make_managed<Gtk::RadioButton>(group, table.title);
        button->set_mode(false);
        button->signal_toggled().connect([this, button, chosen = &table] {
            if (button->get_active()) {
                m_table = chosen;
                m_choices.show(*m_table);
                showTable(false);
            }
        });
        m_tableButtons.push_back(button);
        tables->pack_start(*button, Gtk::PACK_SHRINK);
    }
    m_toolbar.pack_start(*tables, Gtk::PACK_SHRINK);

    auto *file = Gtk::make_managed<Gtk::Button>("Import _File...", true);
    file->get_style_context()->add_class("suggested-action");
    file->signal_clicked().connect([this] { chooseFile(); });
    auto *source = Gtk::make_managed<Gtk::Button>("Import _Table...", true);
    source->signal_clicked().connect([this] { chooseSourceTable({}); });
    auto *menu = Gtk::make_managed<Gtk::Menu>();
    auto *open = Gtk::make_managed<Gtk::MenuItem>("_Open Another Database...", true);
    open->signal_activate().connect([this] {
        chooseDatabase("Choose an SQLite file, or type how to reach a database; one that is empty "
                       "gets the tables of drill holes.");
    });
    auto *refused = Gtk::make_managed<Gtk::MenuItem>("_Export Refused Rows...", true);
    refused->signal_activate().connect([this] { exportRefused(); });
    menu->append(*open);
    menu->append(*refused);
    menu->signal_show().connect(
        [this, refused] { refused->set_sensitive(!m_report.file().empty()); });
    menu->show_all();
    auto *menuButton = Gtk::make_managed<Gtk::MenuButton>();
    menuButton->set_image_from_icon_name("open-menu-symbolic");
    menuButton->set_tooltip_text("More");
    menuButton->set_popup(*menu);
    m_toolbar.pack_end(*menuButton, Gtk::PACK_SHRINK);
    m_toolbar.pack_end(*file, Gtk::PACK_SHRINK);
    m_toolbar.pack_end(*source, Gtk::PACK_SHRINK);
    m_toolbar.pack_end(m_replace, Gtk::PACK_SHRINK);
    return m_toolbar;
}

Gtk::Widget &MainWindow::createFaultBar() {
    m_faultBar.set_message_type(Gtk::MESSAGE_ERROR);
    m_faultBar.set_show_close_button();
    m_faultBar.signal_response().connect([this](int) { m_faultBar.hide(); });
    m_fault.set_line_wrap();
    m_fault.set_xalign(0);
    m_fault.set_selectable();
    m_fault.show();
    dynamic_cast<Gtk::Container *>(m_faultBar.get_content_area())->add(m_fault);
    m_faultBar.set_no_show_all();
    return m_faultBar;
}

Gtk::Widget &MainWindow::createBody() {
    auto *both = Gtk::make_managed<Gtk::Paned>(Gtk::ORIENTATION_HORIZONTAL);
    both->pack1(m_grid, true, false);
    auto *frame = Gtk::make_managed<Gtk::Frame>();
    frame->add(m_plan);
    both->pack2(*frame, true, false);
    both->set_position(660);
    return *both;
}

Gtk::Widget &MainWindow::createProgressLine() {
    auto *cancel = Gtk::make_managed<Gtk::Button>("_Cancel", true);
    cancel->signal_clicked().connect([this] {
        if (const auto cancelled = m_cancel) {
            cancelled();
        }
    });
    m_progressBar.set_show_text();
    m_progressBar.set_valign(Gtk::ALIGN_CENTER);
    m_progressLine.pack_start(m_progressBar, Gtk::PACK_EXPAND_WIDGET);
    m_progressLine.pack_start(*cancel, Gtk::PACK_SHRINK);
    m_progressLine.show_all_children();
    m_progressLine.set_no_show_all();
    return m_progressLine;
}

} // namespace drillhole
