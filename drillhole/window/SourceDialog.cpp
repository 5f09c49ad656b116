// SPDX-License-Identifier: MIT

#include "drillhole/window/SourceDialog.h"

#include "drillhole/database/connection.h"
#include "drillhole/database/holeDatabase.h"
#include "drillhole/database/sourceTables.h"
#include "drillhole/window/DatabaseThread.h"

#include <gtkmm.h>

namespace drillhole {

namespace {

constexpr int spacing = 8;

class SourceDialog : public Gtk::Dialog {
public:
    SourceDialog(Gtk::Window &owner, SourceKind kind, const std::string &connection,
                 const std::string &message)
        : Gtk::Dialog(kind == SourceKind::table ? "Choose a Table to Import" : "Open a Database",
                      owner, true),
          m_isForTable(kind == SourceKind::table), m_given(connection),
          m_source(m_isForTable ? openSource : openHoles), m_file("SQLite _File...", true),
          m_connect("C_onnect", true), m_message(message, Gtk::ALIGN_START), m_tables(1) {
        set_default_size(640, m_isForTable ? 420 : 0);
        set_border_width(6);
        m_grid.set_row_spacing(spacing);
        m_grid.set_column_spacing(spacing);
        m_grid.property_margin() = 12;
        m_connection.set_text(withoutPassword(connection));
        m_connection.set_hexpand();
        m_connection.set_placeholder_text(
            "postgresql://host=... dbname=... user=...   odbc://DSN=...");
        m_password.set_visibility(false);
        m_password.set_input_purpose(Gtk::INPUT_PURPOSE_PASSWORD);
        m_password.set_placeholder_text("if the database wants one; it is not kept");
        addRow(0, "Co_nnection", m_connection, m_file);
        addRow(1, "_Password", m_password, m_connect);
        m_file.signal_clicked().connect([this] { chooseFile(); });
        m_connect.signal_clicked().connect([this] { connectDatabase(); });
        m_message.set_line_wrap();
        m_message.set_max_width_chars(60);
        m_message.set_selectable();
        m_grid.attach(m_message, 0, 2, 3);
        get_content_area()->pack_start(m_grid, Gtk::PACK_EXPAND_WIDGET);
        add_button("_Cancel", Gtk::RESPONSE_CANCEL);
        if (m_isForTable) {
            addTables();
        }
        show_all_children();
    }

    ImportSource chosen() {
        const std::vector<int> rows = m_tables.get_selected();
        const auto row = rows.empty() ? 0U : static_cast<unsigned int>(rows.front());
        return {{}, m_source.connection(), rows.empty() ? "" : m_tables.get_text(row)};
    }

private:
    void addRow(int row, const Glib::ustring &text, Gtk::Entry &entry, Gtk::Button &button) {
        auto *label = Gtk::make_managed<Gtk::Label>(text, Gtk::ALIGN_END, Gtk::ALIGN_CENTER, true);
        label->set_mnemonic_widget(entry);
        entry.signal_activate().connect([this] { connectDatabase(); });
        m_grid.attach(*label, 0, row);
        m_grid.attach(entry, 1, row);
        m_grid.attach(button, 2, row);
    }

    void addTables() {
        add_button("_Match Columns...", Gtk::RESPONSE_OK)
            ->get_style_context()
            ->add_class("suggested-action");
        set_response_sensitive(Gtk::RESPONSE_OK, false);
        m_tables.set_headers_visible(false);
        m_tables.get_selection()->signal_changed().connect(
            [this] { set_response_sensitive(Gtk::RESPONSE_OK, !m_tables.get_selected().empty()); });
        m_tables.signal_row_activated().connect(
            [this](const auto &, auto *) { response(Gtk::RESPONSE_OK); });
        auto *scrolled = Gtk::make_managed<Gtk::ScrolledWindow>();
        scrolled->set_shadow_type(Gtk::SHADOW_IN);
        scrolled->set_vexpand();
        scrolled->add(m_tables);
        m_grid.attach(*scrolled, 0, 3, 3);
    }

    void chooseFile() {
        const auto chooser = Gtk::FileChooserNative::create("Choose an SQLite Database", *this,
                                                            Gtk::FILE_CHOOSER_ACTION_OPEN, {}, {});
        if (chooser->run() == Gtk::RESPONSE_ACCEPT) {
            m_connection.set_text(connectionFor(chooser->get_filename()));
            connectDatabase();
        }
    }

    void connectDatabase() {
        const std::string typed = m_connection.get_text();
        if (typed.empty()) {
            m_message.set_text("Type a connection string, or choose an SQLite file.");
            return;
        }
        const bool isAsGiven =
            typed == withoutPassword(m_given) && m_password.get_text_length() == 0;
        m_source.use(isAsGiven ? m_given
                               : withPassword(connectionFor(typed), m_password.get_text()));
        m_tables.clear_items();
        m_connect.set_sensitive(false);
        m_message.set_text("Connecting...");
        m_message.show();
        m_source.run(
            [isForTable = m_isForTable](soci::session &source) {
                return isForTable ? sourceTables(source) : std::map<std::string, std::string>();
            },
            [this](const std::map<std::string, std::string> &tables, const std::string &fault) {
                m_connect.set_sensitive();
                if (fault.empty() && !m_isForTable) {
                    response(Gtk::RESPONSE_OK);
                    return;
                }
                m_message.set_text(fault.empty() ? "The database has no tables that you may read."
                                                 : fault);
                for (const auto &[name, inQuery] : tables) {
                    m_tables.append(name);
                    m_message.hide();
                }
                if (!tables.empty()) {
                    m_tables.set_cursor(Gtk::TreePath("0"));
                    m_tables.grab_focus();
                }
            });
    }

    bool m_isForTable;
    std::string m_given; // the connection to begin with; its password is not shown
    DatabaseThread m_source;
    Gtk::Grid m_grid;
    Gtk::Entry m_connection;
    Gtk::Entry m_password;
    Gtk::Button m_file;
    Gtk::Button m_connect;
    Gtk::Label m_message;
    Gtk::ListViewText m_tables;
};

} // namespace

std::optional<ImportSource> chooseSource(Gtk::Window &owner, SourceKind kind,
                                         const std::string &connection,
                                         const std::string &message) {
    SourceDialog dialog(owner, kind, connection, message);
    return dialog.run() == Gtk::RESPONSE_OK ? std::optional(dialog.chosen()) : std::nullopt;
}

} // namespace drillhole
