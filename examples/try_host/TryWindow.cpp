#include "examples/try_host/TryWindow.h"

#include "examples/try_host/sources.h"

#include <filesystem>

namespace {

TryWindow &windowOf(void *data) {
    return *static_cast<TryWindow *>(data);
}

void onOpen(GtkButton *, void *window) {
    windowOf(window).openFile();
}

void onForget(GtkButton *, void *window) {
    windowOf(window).forgetChosen();
}

void onImport(GtkButton *, void *window) {
    windowOf(window).importChosen();
}

void onChosen(GtkListBox *, GtkListBoxRow *, void *window) {
    windowOf(window).showChosen();
}

void onActivated(GtkListBox *, GtkListBoxRow *, void *window) {
    windowOf(window).importChosen();
}

GtkWidget *createRow(const Source &source) {
    const std::string place = source.isTable()
                                  ? "table " + source.fileName
                                  : std::filesystem::path(source.fileName).filename().string();
    char *shownPlace = g_filename_display_name(place.c_str());
    char *shownTitle = g_filename_display_name(source.title.c_str());
    char *markup = g_markup_printf_escaped("%s\n<small>%s</small>", shownTitle, shownPlace);
    GtkWidget *label = gtk_label_new(nullptr);
    gtk_label_set_markup(GTK_LABEL(label), markup);
    g_free(markup);
    g_free(shownTitle);
    g_free(shownPlace);
    gtk_label_set_xalign(GTK_LABEL(label), 0);
    gtk_label_set_ellipsize(GTK_LABEL(label), PANGO_ELLIPSIZE_MIDDLE);
    g_object_set(label, "margin", 8, nullptr);
    gtk_widget_show(label);
    return label;
}

GtkWidget *addButton(GtkWidget *box, const char *text, GCallback onClicked, void *data) {
    GtkWidget *button = gtk_button_new_with_mnemonic(text);
    g_signal_connect(button, "clicked", onClicked, data);
    gtk_box_pack_start(GTK_BOX(box), button, TRUE, TRUE, 0);
    return button;
}

} // namespace

TryWindow::TryWindow(wxImportCSVDialogPeer &peer, const std::vector<Source> &sources)
    : m_peer(peer), m_window(gtk_window_new(GTK_WINDOW_TOPLEVEL)) {
    gtk_window_set_title(GTK_WINDOW(m_window), "A host to try the column import in");
    gtk_window_set_default_size(GTK_WINDOW(m_window), 860, 540);
    g_signal_connect(m_window, "destroy", G_CALLBACK(gtk_main_quit), nullptr);

    GtkWidget *left = gtk_box_new(GTK_ORIENTATION_VERTICAL, 8);
    gtk_box_pack_start(GTK_BOX(left), createSourceList(), TRUE, TRUE, 0);
    gtk_box_pack_start(GTK_BOX(left), createButtons(), FALSE, FALSE, 0);

    GtkWidget *both = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 16);
    g_object_set(both, "margin", 12, nullptr);
    gtk_box_pack_start(GTK_BOX(both), left, FALSE, FALSE, 0);
    gtk_box_pack_start(GTK_BOX(both), m_result.widget(), TRUE, TRUE, 0);
    gtk_container_add(GTK_CONTAINER(m_window), both);

    for (const Source &source : sources) {
        add(source);
    }
    gtk_list_box_select_row(m_list, gtk_list_box_get_row_at_index(m_list, 0));
    gtk_widget_show_all(m_window);
}

SourceSession &TryWindow::chosen() {
    const int row = gtk_list_box_row_get_index(gtk_list_box_get_selected_row(m_list));
    return m_sessions[static_cast<std::size_t>(row)];
}

const ImportResult &TryWindow::importChosen() {
    const ImportResult &result = chosen().import(m_peer, m_window);
    showChosen();
    return result;
}

void TryWindow::forgetChosen() {
    chosen().forget();
    showChosen();
}

void TryWindow::openFile() {
    GtkFileChooserNative *chooser = gtk_file_chooser_native_new(
        "Open", GTK_WINDOW(m_window), GTK_FILE_CHOOSER_ACTION_OPEN, nullptr, nullptr);
    if (gtk_native_dialog_run(GTK_NATIVE_DIALOG(chooser)) == GTK_RESPONSE_ACCEPT) {
        char *path = gtk_file_chooser_get_filename(GTK_FILE_CHOOSER(chooser));
        add(sourceOfFile(path));
        g_free(path);
    }
    g_object_unref(chooser);
}

void TryWindow::showChosen() {
    m_result.show(chosen());
    gtk_widget_set_sensitive(m_forget, chosen().lastResult() ? TRUE : FALSE);
}

GtkWidget *TryWindow::createSourceList() {
    GtkWidget *list = gtk_list_box_new();
    m_list = GTK_LIST_BOX(list);
    gtk_list_box_set_selection_mode(m_list, GTK_SELECTION_BROWSE);
    gtk_list_box_set_activate_on_single_click(m_list, FALSE);
    g_signal_connect(list, "row-selected", G_CALLBACK(onChosen), this);
    g_signal_connect(list, "row-activated", G_CALLBACK(onActivated), this);

    GtkWidget *scrolled = gtk_scrolled_window_new(nullptr, nullptr);
    gtk_scrolled_window_set_shadow_type(GTK_SCROLLED_WINDOW(scrolled), GTK_SHADOW_IN);
    gtk_scrolled_window_set_policy(GTK_SCROLLED_WINDOW(scrolled), GTK_POLICY_NEVER,
                                   GTK_POLICY_AUTOMATIC);
    gtk_widget_set_size_request(scrolled, 260, -1);
    gtk_container_add(GTK_CONTAINER(scrolled), list);
    return scrolled;
}

GtkWidget *TryWindow::createButtons() {
    GtkWidget *buttons = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 8);
    gtk_box_set_homogeneous(GTK_BOX(buttons), TRUE);
    addButton(buttons, "_Open...", G_CALLBACK(onOpen), this);
    m_forget = addButton(buttons, "_Forget", G_CALLBACK(onForget), this);
    GtkWidget *import = addButton(buttons, "_Import", G_CALLBACK(onImport), this);
    gtk_style_context_add_class(gtk_widget_get_style_context(import),
                                GTK_STYLE_CLASS_SUGGESTED_ACTION);
    return buttons;
}

void TryWindow::add(const Source &source) {
    m_sessions.emplace_back(source);
    GtkWidget *row = createRow(source);
    gtk_container_add(GTK_CONTAINER(m_list), row);
    gtk_list_box_select_row(m_list, GTK_LIST_BOX_ROW(gtk_widget_get_parent(row)));
}
