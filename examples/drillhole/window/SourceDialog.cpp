// SPDX-License-Identifier: MIT

#include "examples/drillhole/window/SourceDialog.h"

#include "examples/drillhole/database/connection.h"
#include "examples/drillhole/database/holeDatabase.h"
#include "examples/drillhole/database/sourceTables.h"

#include <gtkmm/filechoosernative.h>
#include <gtkmm/scrolledwindow.h>

namespace drillhole {

namespace {

constexpr int spacing = 8;

} // namespace

SourceDialog::SourceDialog(Gtk::Window &owner, Choice choice, const std::string &connection,
                           const std::string &message)
    : Gtk::Dialog(choice == Choice::table ? "Choose a Table to Import" : "Open a Database", owner,
                  true),
      m_choice(choice), m_given(connection), m_grid(Gtk::make_managed<Gtk::Grid>()),
      m_file("SQLite _File...", true), m_connect("C_onnect", true) {
    set_default_size(640, choice == Choice::table ? 420 : 0);
    set_border_width(6);
    add_button("_Cancel", Gtk::RESPONSE_CANCEL);
    if (choice == Choice::table) {
        add_button("_Match Columns...", Gtk::RESPONSE_OK)
            ->get_style_context()
            ->add_class("suggested-action");
        set_default_response(Gtk::RESPONSE_OK);
        set_response_sensitive(Gtk::RESPONSE_OK, false);
    }

    m_grid->set_row_spacing(spacing);
    m_grid->set_column_spacing(spacing);
    m_grid->property_margin() = 12;
    m_connection.set_text(withoutPassword(connection));
    m_connection.set_hexpand();
    m_connection.set_placeholder_text("postgresql://host=... dbname=... user=...   odbc://DSN=...");
    m_connection.signal_activate().connect([this] { connectDatabase(); });
    m_password.set_visibility(false);
    m_password.set_input_purpose(Gtk::INPUT_PURPOSE_PASSWORD);
    m_password.set_placeholder_text("if the database wants one; it is not kept");
    m_password.signal_activate().connect([this] { connectDatabase(); });
    addRow(0, "Co_nnection", m_connection);
    m_grid->attach(m_file, 2, 0);
    addRow(1, "_Password", m_password);
    m_grid->attach(m_connect, 2, 1);
    m_file.signal_clicked().connect([this] { chooseFile(); });
    m_connect.signal_clicked().connect([this] { connectDatabase(); });

    m_message.set_xalign(0);
    m_message.set_line_wrap();
    m_message.set_max_width_chars(60);
    m_message.set_selectable();
    m_message.set_text(message);
    m_grid->attach(m_message, 0, 2, 3);

    auto *scrolled = Gtk::make_managed<Gtk::ScrolledWindow>();
    scrolled->set_shadow_type(Gtk::SHADOW_IN);
    scrolled->set_vexpand();
    scrolled->add(m_tables);
    m_tables.signal_row_selected().connect(
        [this](Gtk::ListBoxRow *row) { set_response_sensitive(Gtk::RESPONSE_OK, row != nullptr); });
    m_tables.set_activate_on_single_click(false);
    m_tables.signal_row_activated().connect(
        [this](Gtk::ListBoxRow *) { response(Gtk::RESPONSE_OK); });
    m_grid->attach(*scrolled, 0, 3, 3);
    scrolled->set_no_show_all(choice == Choice::holes);
    get_content_area()->pack_start(*m_grid, Gtk::PACK_EXPAND_WIDGET);
    show_all_children();
}

std::optional<SourceTable> SourceDialog::choose() {
    if (run() != Gtk::RESPONSE_OK) {
        return std::nullopt;
    }
    if (m_choice == Choice::holes) {
        return SourceTable{m_source->connection(), {}};
    }
    const auto *label = dynamic_cast<Gtk::Label *>(m_tables.get_selected_row()->get_child());
    return SourceTable{m_source->connection(), label->get_text()};
}

void SourceDialog::addRow(int row, const Glib::ustring &text, Gtk::Widget &control) {
    auto *label = Gtk::make_managed<Gtk::Label>(text, Gtk::ALIGN_END, Gtk::ALIGN_CENTER, true);
    label->set_mnemonic_widget(control);
    m_grid->attach(*label, 0, row);
    m_grid->attach(control, 1, row);
}

void SourceDialog::chooseFile() {
    const auto chooser = Gtk::FileChooserNative::create("Choose an SQLite Database", *this,
                                                        Gtk::FILE_CHOOSER_ACTION_OPEN, {}, {});
    if (chooser->run() == Gtk::RESPONSE_ACCEPT) {
        m_connection.set_text(connectionFor(chooser->get_filename()));
        connectDatabase();
    }
}

void SourceDialog::connectDatabase() {
    const std::string typed = m_connection.get_text();
    if (typed.empty()) {
        m_message.set_text("Type a connection string, or choose an SQLite file.");
        return;
    }
    const bool isAsGiven = typed == withoutPassword(m_given) && m_password.get_text_length() == 0;
    const std::string connection =
        isAsGiven ? m_given : withPassword(connectionFor(typed), m_password.get_text());
    const auto names = std::make_shared<std::map<std::string, std::string>>();
    showTables({});
    m_connect.set_sensitive(false);
    m_message.set_text("Connecting...");
    m_message.show();
    const bool isForTable = m_choice == Choice::table;
    m_source = std::make_unique<DatabaseThread>(connection, isForTable ? openSource : openHoles);
    m_source->run(
        [names, isForTable](soci::session &source) {
            if (isForTable) {
                *names = sourceTables(source);
            }
        },
        [this, names, isForTable](const std::string &fault) {
            m_connect.set_sensitive();
            showTables(*names);
            m_message.set_text(fault.empty() ? "The database has no tables that you may read."
                                             : fault);
            m_message.set_visible(names->empty());
            if (fault.empty() && !isForTable) {
                response(Gtk::RESPONSE_OK);
            }
        });
}

void SourceDialog::showTables(const std::map<std::string, std::string> &names) {
    for (Gtk::Widget *row : m_tables.get_children()) {
        m_tables.remove(*row);
    }
    for (const auto &[name, inQuery] : names) {
        auto *label = Gtk::make_managed<Gtk::Label>(name, Gtk::ALIGN_START);
        label->property_margin() = 4;
        m_tables.append(*label);
        label->show_all();
    }
    m_tables.show_all();
    if (Gtk::ListBoxRow *first = m_tables.get_row_at_index(0)) {
        m_tables.select_row(*first);
        first->grab_focus();
    }
}

} // namespace drillhole
