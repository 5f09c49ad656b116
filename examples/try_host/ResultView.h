#pragma once

#include "examples/try_host/SourceSession.h"

#include <gtk/gtk.h>

/// Shows what the last import of a source brought, and what is kept for its next one.
class ResultView {
public:
    ResultView();

    GtkWidget *widget() const { return m_box; }

    void show(const SourceSession &session);

private:
    void showMatches(const Source &source, const ImportResult &result);

    GtkWidget *m_box;
    GtkLabel *m_heading;
    GtkLabel *m_cutting;
    GtkListStore *m_rows;
    GtkLabel *m_kept;
};
