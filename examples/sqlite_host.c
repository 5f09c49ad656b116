/* SPDX-License-Identifier: MIT */

/* Imports a file of collars into an SQLite database: shows the library's dialog, then inserts the
   matched fields of each row, in one transaction. */
/*     sqlite_host HOLES.sqlite COLLARS.csv */

#include <columnimport.h>

#include <locale.h>
#include <stdbool.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <gtk/gtk.h>
#include <sqlite3.h>

enum { column_count = 4, most_fields = 1000 };

/* The table's columns, with words for them that the library does not know. */
static const struct {
    const char *name;
    bool is_required;
    bool is_number;
    const char *alternatives[4];
} columns[column_count] = {
    {"holename", true, false, {"hole_id", "drillhole", "dhid"}},
    {"easting", true, true, {"East", "X_MGA", "collar_x"}},
    {"northing", true, true, {"North", "Y_MGA", "collar_y"}},
    {"elevation", false, true, {"RL", "elev_m", "collar_z"}},
};

static columnimport_import *new_import(const char *path) {
    columnimport_import *import = columnimport_new();
    columnimport_set_title(import, "Import collars");
    columnimport_set_file(import, path);
    for (int32_t i = 0; i < column_count; ++i) {
        columnimport_add_column(import, columns[i].name);
        columnimport_set_required(import, i, columns[i].is_required);
        for (int32_t k = 0; columns[i].alternatives[k] != NULL; ++k) {
            columnimport_add_alternative(import, i, columns[i].alternatives[k]);
        }
    }
    return import;
}

/* Splits a line in place and returns the number of its fields. Double quotes protect delimiters,
   but not line ends. */
static int32_t cut(char *line, char delimiter, char **fields) {
    int32_t count = 0;
    char *to = line;
    bool is_quoted = false;
    fields[count++] = to;
    for (const char *from = line; *from != '\0' && *from != '\r' && *from != '\n'; ++from) {
        if (is_quoted && from[0] == '"' && from[1] == '"') {
            *to++ = *from++;
        } else if (*from == '"') {
            is_quoted = !is_quoted;
        } else if (*from == delimiter && !is_quoted && count < most_fields) {
            *to++ = '\0';
            fields[count++] = to;
        } else {
            *to++ = *from;
        }
    }
    *to = '\0';
    return count;
}

/* Binds a field to the statement; returns the reason if the row is refused, or else null. */
static const char *bind(sqlite3_stmt *insertion, int32_t column, const char *text) {
    if (*text == '\0') {
        sqlite3_bind_null(insertion, column + 1);
        return columns[column].is_required ? "is empty" : NULL;
    }
    if (!columns[column].is_number) {
        sqlite3_bind_text(insertion, column + 1, text, -1, SQLITE_TRANSIENT);
        return NULL;
    }
    char *end = NULL;
    sqlite3_bind_double(insertion, column + 1, g_ascii_strtod(text, &end));
    return *end == '\0' ? NULL : "is no number";
}

/* The field of each row that belongs to a column, or columnimport_none. */
static int32_t field_of(columnimport_import *import, int32_t column) {
    return columnimport_match_field(import, column);
}

/* Inserts one row, or prints why it is refused. */
static bool insert(sqlite3 *database, sqlite3_stmt *insertion, columnimport_import *import,
                   char **fields, int32_t field_count, int line_number) {
    const char *reason = NULL;
    int32_t column = 0;
    for (; column < column_count && reason == NULL; ++column) {
        const int32_t field = field_of(import, column);
        reason = bind(insertion, column, field >= 0 && field < field_count ? fields[field] : "");
    }
    if (reason != NULL) {
        printf("line %d: %s %s\n", line_number, columns[column - 1].name, reason);
        return false;
    }
    const bool is_inserted = sqlite3_step(insertion) == SQLITE_DONE;
    if (!is_inserted) { /* for example, the hole exists already */
        printf("line %d: %s\n", line_number, sqlite3_errmsg(database));
    }
    sqlite3_reset(insertion);
    return is_inserted;
}

/* Imports the rows with the user's matches: all of them, or none if the file can't be read. */
static bool import_rows(sqlite3 *database, columnimport_import *import, const char *path) {
    FILE *file = fopen(path, "r");
    if (file == NULL) {
        return false;
    }
    sqlite3_stmt *insertion = NULL;
    sqlite3_exec(database, "begin", NULL, NULL, NULL);
    sqlite3_prepare_v2(database, "insert into collar values (?, ?, ?, ?)", -1, &insertion, NULL);
    const char delimiter = (char)columnimport_delimiter(import);
    char *line = NULL;
    size_t size = 0;
    char *fields[most_fields];
    int taken = 0;
    int refused = 0;
    for (int number = 1; getline(&line, &size, file) >= 0; ++number) {
        if (number == 1 && columnimport_first_line_holds_titles(import) == 1) {
            continue;
        }
        const int32_t count = cut(line, delimiter, fields);
        const bool is_taken = insert(database, insertion, import, fields, count, number);
        taken += is_taken ? 1 : 0;
        refused += is_taken ? 0 : 1;
    }
    sqlite3_finalize(insertion);
    const bool is_whole = ferror(file) == 0;
    const char *const end = is_whole ? "commit" : "rollback";
    const bool is_done = sqlite3_exec(database, end, NULL, NULL, NULL) == SQLITE_OK && is_whole;
    printf("%d taken, %d refused%s\n", taken, refused, is_done ? "" : ", and nothing is kept");
    free(line);
    fclose(file);
    return is_done;
}

int main(int argc, char **argv) {
    setlocale(LC_ALL, "");
    gtk_init(&argc, &argv);
    sqlite3 *database = NULL;
    const char *const table = "create table if not exists collar (holename text primary key, "
                              "easting real not null, northing real not null, elevation real)";
    if (argc != 3 || sqlite3_open(argv[1], &database) != SQLITE_OK ||
        sqlite3_exec(database, table, NULL, NULL, NULL) != SQLITE_OK) {
        fprintf(stderr, "usage: sqlite_host HOLES.sqlite COLLARS.csv\n");
        return 2;
    }
    GtkWidget *window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    gtk_widget_show(window);

    columnimport_import *import = new_import(argv[2]);
    const int32_t outcome = columnimport_show(import, window);
    bool is_done = false;
    if (outcome == columnimport_ok) {
        is_done = import_rows(database, import, argv[2]);
    } else if (outcome != columnimport_cancelled) {
        fprintf(stderr, "%s\n", columnimport_message(import));
    }
    columnimport_free(import);
    sqlite3_close(database);
    return is_done ? 0 : 1;
}
