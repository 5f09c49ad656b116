#include "examples/try_host/ResultView.h"

#include "examples/try_host/labels.h"

namespace {

enum Column { appColumn, fileColumn, isMatched, columnCount };

GtkLabel *addLabel(GtkWidget *box) {
    GtkWidget *label = gtk_label_new(nullptr);
    gtk_label_set_xalign(GTK_LABEL(label), 0);
    gtk_label_set_line_wrap(GTK_LABEL(label), TRUE);
    gtk_box_pack_start(GTK_BOX(box), label, FALSE, FALSE, 0);
    return GTK_LABEL(label);
}

void makeHeading(GtkLabel *label) {
    PangoAttrList *attributes = pango_attr_list_new();
    pango_attr_list_insert(attributes, pango_attr_weight_new(PANGO_WEIGHT_BOLD));
    pango_attr_list_insert(attributes, pango_attr_scale_new(PANGO_SCALE_LARGE));
    gtk_label_set_attributes(label, attributes);
    pango_attr_list_unref(attributes);
}

void addColumn(GtkTreeView *table, const char *title, Column text) {
    GtkTreeViewColumn *column = gtk_tree_view_column_new_with_attributes(
        title, gtk_cell_renderer_text_new(), "text", text, "sensitive", isMatched, nullptr);
    gtk_tree_view_column_set_expand(column, TRUE);
    gtk_tree_view_column_set_resizable(column, TRUE);
    gtk_tree_view_append_column(table, column);
}

GtkListStore *addTable(GtkWidget *box) {
    GtkListStore *rows =
        gtk_list_store_new(columnCount, G_TYPE_STRING, G_TYPE_STRING, G_TYPE_BOOLEAN);
    GtkWidget *table = gtk_tree_view_new_with_model(GTK_TREE_MODEL(rows));
    g_object_unref(rows); // the table keeps it
    addColumn(GTK_TREE_VIEW(table), "Application column", appColumn);
    addColumn(GTK_TREE_VIEW(table), "Column of the source", fileColumn);
    gtk_tree_selection_set_mode(gtk_tree_view_get_selection(GTK_TREE_VIEW(table)),
                                GTK_SELECTION_NONE);

    GtkWidget *scrolled = gtk_scrolled_window_new(nullptr, nullptr);
    gtk_scrolled_window_set_shadow_type(GTK_SCROLLED_WINDOW(scrolled), GTK_SHADOW_IN);
    gtk_container_add(GTK_CONTAINER(scrolled), table);
    gtk_box_pack_start(GTK_BOX(box), scrolled, TRUE, TRUE, 0);
    return rows;
}

/// The bytes of a file's titles are in no encoding that anybody knows of; a control wants UTF-8.
std::string asUtf8(const std::string &bytes) {
    char *valid = g_utf8_make_valid(bytes.data(), static_cast<gssize>(bytes.size()));
    std::string text(valid);
    g_free(valid);
    return text;
}

std::string keptText(const SourceSession &session) {
    const ImportResult &kept = session.kept();
    const std::string matches =
        kept.matches.empty() ? "no matches" : matchedText(session.source(), kept);
    return "Kept: " + matches + ". " + cuttingText(session.source(), kept);
}

} // namespace

ResultView::ResultView() : m_box(gtk_box_new(GTK_ORIENTATION_VERTICAL, 8)) {
    m_heading = addLabel(m_box);
    makeHeading(m_heading);
    m_cutting = addLabel(m_box);
    m_rows = addTable(m_box);
    m_kept = addLabel(m_box);
    gtk_style_context_add_class(gtk_widget_get_style_context(GTK_WIDGET(m_kept)),
                                GTK_STYLE_CLASS_DIM_LABEL);
}

void ResultView::show(const SourceSession &session) {
    gtk_list_store_clear(m_rows);
    gtk_label_set_text(m_kept, keptText(session).c_str());
    if (!session.lastResult()) {
        gtk_label_set_text(m_heading, "Not imported yet");
        gtk_label_set_text(m_cutting, "Press Import to match the columns of this source.");
        gtk_widget_show(GTK_WIDGET(m_cutting));
        return;
    }
    const ImportResult &result = *session.lastResult();
    const std::string heading =
        (result.ok ? "OK: " : "Cancelled: ") + matchedText(session.source(), result);
    gtk_label_set_text(m_heading, heading.c_str());
    const std::string cutting = cuttingText(session.source(), result);
    gtk_label_set_text(m_cutting, cutting.c_str());
    gtk_widget_set_visible(GTK_WIDGET(m_cutting), cutting.empty() ? FALSE : TRUE);
    showMatches(session.source(), result);
}

void ResultView::showMatches(const Source &source, const ImportResult &result) {
    for (std::size_t row = 0; row < result.matches.size(); ++row) {
        const std::string &match = result.matches[row];
        const gboolean matched = match.empty() ? FALSE : TRUE;
        gtk_list_store_insert_with_values(
            m_rows, nullptr, -1, appColumn, source.appColumns[row].c_str(), fileColumn,
            matched ? asUtf8(match).c_str() : "none", isMatched, matched, -1);
    }
}
