// SPDX-License-Identifier: MIT

#ifndef columnimport_h
#define columnimport_h

#include <stdint.h>

#if defined(_WIN32) && defined(columnimport_EXPORTS)
#define columnimport_exported __declspec(dllexport)
#elif defined(_WIN32) && !defined(COLUMNIMPORT_STATIC_DEFINE)
#define columnimport_exported __declspec(dllimport)
#elif defined(__GNUC__) && !defined(_WIN32)
#define columnimport_exported __attribute__((visibility("default")))
#else
#define columnimport_exported
#endif

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @file
 * The library's interface for a host in any language and by any compiler: plain C99.
 *
 * An import is an object that the host makes, fills, runs and reads:
 *
 *     columnimport_import *import = columnimport_new();
 *     columnimport_set_title(import, "Import collars");
 *     columnimport_add_column(import, "holename");
 *     columnimport_add_column(import, "elevation");
 *     columnimport_add_alternative(import, 1, "RL");
 *     columnimport_set_file(import, "collars.csv");
 *     if (columnimport_show(import, window) == columnimport_ok) {
 *         int32_t position = columnimport_match_position(import, 1);
 *     }
 *     columnimport_free(import);
 *
 * Running it is either columnimport_propose, which needs no window, no display and no toolkit, or
 * columnimport_show, which lets a person correct the proposal in a dialog. An import may be filled
 * further and run again; what it was filled with stays.
 *
 * What comes from a source, its column names and the matches, is bytes of any encoding with their
 * length; there may be zero bytes among them, and a zero byte that does not count follows them. The
 * host's own words, the title and the path are UTF-8 that ends with a zero byte. Columns are
 * counted from 0.
 *
 * Every text that is passed in is copied within the call and stays the caller's. Every text that is
 * given out stays the library's; how long it lives stands at each function. All numbers are signed,
 * and none may be negative where it is passed in.
 *
 * A null pointer, a number out of range, a text that is no UTF-8, or a call out of order is wrong
 * use: the function changes nothing and gives columnimport_wrong_use, columnimport_invalid or null,
 * and columnimport_message tells in one sentence what is wrong. No exception leaves a function.
 *
 * Threads: one import is for one thread at a time; different imports may be used at the same time.
 * columnimport_show and columnimport_show_over_x11 are for the thread of the user interface alone,
 * everything else for any.
 */

/** One import: the columns on both sides, and what came of the last run. */
typedef struct columnimport_import columnimport_import;

/** What came of a call. Further values may be added. */
enum {
    /** All is well; of columnimport_show: the person pressed OK. */
    columnimport_ok = 0,
    /** The person ended the dialog otherwise. The result can be read all the same. */
    columnimport_cancelled = 1,
    /** There is no display to show a dialog on. */
    columnimport_no_display = 2,
    /** Another dialog of the library is open in this process. */
    columnimport_already_open = 3,
    /** The call was wrong; columnimport_message says what about it. */
    columnimport_wrong_use = 4,
    /** There was no memory, or something unforeseen happened; columnimport_message says what. */
    columnimport_failed = 5
};

/** What stands in the place of a position or another number that is not there. */
enum {
    /** There is no position: no source column is matched, or none of the source's columns is. Or
     * there is no origin and no score. */
    columnimport_none = -1,
    /** The call was wrong; columnimport_message says what about it. */
    columnimport_invalid = -2
};

/** How an application column came by its match. Further values may be added. */
enum {
    /** The two names are the same, but for capitals and punctuation. */
    columnimport_origin_same = 1,
    /** The library knows the two names as synonyms. */
    columnimport_origin_synonym = 2,
    /** The source column is called as one of the host's alternatives. */
    columnimport_origin_alternative = 3,
    /** The names only resemble each other: a guess, which a person should look at. */
    columnimport_origin_similar = 4,
    /** The first line holds no titles, and columns are paired in their order. */
    columnimport_origin_in_order = 5,
    /** The source has a column of the name that was saved. */
    columnimport_origin_saved = 6,
    /** The person chose it in the dialog. */
    columnimport_origin_by_hand = 7,
    /** The person dragged in a text from another program that names no column of the source. */
    columnimport_origin_foreign = 8
};

/* ---- The library ---- */

/** The library's version, such as "0.4.0". It lives as long as the library. */
columnimport_exported const char *columnimport_version(void);

/**
 * The library's version in numbers. A pointer may be null; that number is not written.
 *
 * @param[out] major  0 in "0.4.1"
 * @param[out] minor  4 in "0.4.1"
 * @param[out] patch  1 in "0.4.1"
 */
columnimport_exported void columnimport_version_numbers(int32_t *major, int32_t *minor,
                                                        int32_t *patch);

/* ---- An import's life ---- */

/**
 * Makes an import without columns and without a source. The caller frees it.
 *
 * @return the import; null if there is no memory
 */
columnimport_exported columnimport_import *columnimport_new(void);

/**
 * Frees an import and every text that it gave out. Of one whose dialog is open nothing is freed
 * before the dialog has ended.
 *
 * @param import  the import, which is not to be used again; null does nothing
 */
columnimport_exported void columnimport_free(columnimport_import *import);

/**
 * What was wrong with the last call on this import.
 *
 * @return a sentence in English, UTF-8; empty if nothing was wrong. It lives until the next call on
 *         the import. Of a null import it says that, and lives for ever.
 */
columnimport_exported const char *columnimport_message(columnimport_import *import);

/* ---- Filling it: the application columns ----
 *
 * Each of these gives columnimport_ok, columnimport_wrong_use or columnimport_failed. While the
 * dialog of the import is open all of them are wrong use. */

/**
 * The text of the dialog's title bar. Without one the bar is empty.
 *
 * @param import  the import
 * @param title   UTF-8
 */
columnimport_exported int32_t columnimport_set_title(columnimport_import *import,
                                                     const char *title);

/**
 * The size of the dialog's frame in pixels, as it is on a screen of the usual scale. Without one it
 * is 900 by 840 for a file and 900 by 620 for a table, which shows all of either.
 *
 * @param import         the import
 * @param width, height  1 or more
 */
columnimport_exported int32_t columnimport_set_size(columnimport_import *import, int32_t width,
                                                    int32_t height);

/**
 * Adds an application column behind those that were added before. It gets the next number: the
 * first one 0, the second one 1.
 *
 * @param import  the import
 * @param name    the host's name for it, UTF-8; it may be empty, and names may be equal
 */
columnimport_exported int32_t columnimport_add_column(columnimport_import *import,
                                                      const char *name);

/**
 * Adds another word of the host's for one of its columns. A source column that is called so, but
 * for capitals and punctuation, counts like one with a synonym that the library itself knows. One
 * that is called like an application column's own name goes there first.
 *
 *     columnimport_add_alternative(import, elevation, "RL");
 *
 * @param import  the import
 * @param column  the number of the application column
 * @param name    the word, UTF-8
 */
columnimport_exported int32_t columnimport_add_alternative(columnimport_import *import,
                                                           int32_t column, const char *name);

/**
 * Says whether the host needs a match for one of its columns. If a required one has none as the
 * person presses OK, or if then one source column stands at two application columns, the dialog
 * says so in one sentence, once; OK again ends it all the same. Where nothing is required, nothing
 * is said.
 *
 * @param import    the import
 * @param column    the number of the application column
 * @param required  0 for no, which it is without this call, or 1
 */
columnimport_exported int32_t columnimport_set_required(columnimport_import *import, int32_t column,
                                                        int32_t required);

/**
 * Says whether one of the host's columns may be matched by a similar name, which is a guess: "Zn %"
 * and ni_pct resemble each other and are different metals. A column that takes none is matched only
 * to a source column that is called so, is a synonym, or is called as one of its alternatives. A
 * source column that it refuses goes to no other column instead. Saved matches and pairs in order
 * are not touched, nor is what a person writes.
 *
 * @param import   the import
 * @param column   the number of the application column
 * @param similar  1 for yes, which it is without this call, or 0
 */
columnimport_exported int32_t columnimport_set_similar(columnimport_import *import, int32_t column,
                                                       int32_t similar);

/**
 * The match of an earlier import, such as columnimport_match_name gave it. If at least one column
 * has one that is not empty and the source has titles, then no proposal is made: each column is
 * matched with the first source column of the very name that was saved for it, and with none where
 * there is no such column or nothing was saved. "Reset to Default" in the dialog proposes afresh.
 *
 * @param import  the import
 * @param column  the number of the application column
 * @param name    the name in bytes; null, with a length of 0, takes the saved match back
 * @param length  their number
 */
columnimport_exported int32_t columnimport_set_saved_match(columnimport_import *import,
                                                           int32_t column, const char *name,
                                                           int64_t length);

/* ---- Filling it: the source ---- */

/**
 * Makes a delimited file the source. It is opened and closed again within each run, and only its
 * first lines are read.
 *
 * @param import  the import
 * @param path    the path, UTF-8
 */
columnimport_exported int32_t columnimport_set_file(columnimport_import *import, const char *path);

/**
 * The byte that parts the fields of the file, taken literally; ',' without this call. A person may
 * change it in the dialog, which does not change what a further run begins with.
 */
columnimport_exported int32_t columnimport_set_delimiter(columnimport_import *import,
                                                         char delimiter);

/**
 * Says whether the first line of the file holds titles. Where it does not, the columns are known by
 * number only and are called Column1, Column2 and so on, and application and source columns are
 * paired in their order. A table always has names, whatever is said here.
 *
 * @param import  the import
 * @param holds   0 for no, or 1, which it is without this call
 */
columnimport_exported int32_t columnimport_set_first_line_holds_titles(columnimport_import *import,
                                                                       int32_t holds);

/**
 * Makes a table the source, of which only the names of its columns are told.
 *
 * @param import   the import
 * @param names    the columns' names in bytes, in the table's order; may be null if there are none
 * @param lengths  the length of each name; null if each ends with a zero byte
 * @param count    how many there are
 */
columnimport_exported int32_t columnimport_set_table(columnimport_import *import,
                                                     const char *const *names,
                                                     const int64_t *lengths, int32_t count);

/**
 * The delimiter that the first line of the file was likely written with, whatever was set: a host
 * may begin with it. Nothing else of the file is read.
 *
 *     int32_t likely = columnimport_likely_delimiter(import);
 *     columnimport_set_delimiter(import, likely == columnimport_none ? ',' : (char)likely);
 *
 * @param import  the import, for which a file was set
 * @return the tab, ';', '|', ',' or ' '; columnimport_none if none is likely or the file can't be
 * read; columnimport_invalid after wrong use, as where no file was set, or if there was no memory
 */
columnimport_exported int32_t columnimport_likely_delimiter(columnimport_import *import);

/* ---- Running it ----
 *
 * A run drops the result of the one before it and the texts that were given out of it. */

/**
 * Matches without a dialog: the result is what columnimport_show would open with. May be called on
 * any thread and without a display.
 *
 * @return columnimport_ok, also for a file that can't be read, of which columnimport_file_problem
 *         tells; columnimport_wrong_use, as where no source was set; or columnimport_failed
 */
columnimport_exported int32_t columnimport_propose(columnimport_import *import);

/**
 * Shows the dialog and returns when the person has ended it. The window can't be used meanwhile.
 *
 * To be called on the thread of the user interface. The first call in a process starts what the
 * dialog needs; a host on GTK keeps its own main loop and its own locale.
 *
 * @param import  the import
 * @param window  the window that the dialog belongs to, or null. On Linux a GtkWidget of GTK 3 that
 *                is a window or stands in one, on Windows an HWND
 * @return any of the outcomes. The result can be read after columnimport_ok and
 *         columnimport_cancelled, and not after the others
 */
columnimport_exported int32_t columnimport_show(columnimport_import *import, void *window);

/**
 * The same over a window of X11, for a host whose windows are not GTK's: one in Qt or Tk, or in
 * another process. The window manager keeps the dialog above that window and gives the keys to it,
 * and the window takes no click while the dialog is open. It may be destroyed meanwhile; then the
 * dialog stays and can be answered.
 *
 * GLib's default main context is served meanwhile, so that what is attached to it goes on: Qt's
 * windows where Qt uses GLib, as it does by custom; not those of Tk.
 *
 * The display is the X11 display that GTK opens by its custom (the variable DISPLAY), also in a
 * session of Wayland, unless GTK has been started on Wayland in this process.
 *
 * @param import  the import
 * @param window  the number of the window; any window within a top-level stands for that
 * @return any of the outcomes: columnimport_no_display also where GTK is on Wayland already, and on
 *         Windows; columnimport_wrong_use also where there is no such window
 */
columnimport_exported int32_t columnimport_show_over_x11(columnimport_import *import,
                                                         int64_t window);

/* ---- Reading it ----
 *
 * All of these speak of the last run. If it came to no result, or there was none, all but
 * columnimport_outcome and columnimport_column_count are wrong use. While the dialog of the import
 * is open there is no result yet. */

/** What the last run returned; columnimport_invalid if there was none. */
columnimport_exported int32_t columnimport_outcome(columnimport_import *import);

/** The number of application columns that were added; columnimport_invalid for a null import. */
columnimport_exported int32_t columnimport_column_count(columnimport_import *import);

/**
 * Why the file could not be read.
 *
 * @return the system's reason in UTF-8, such as "No such file or directory"; null if it was read,
 *         or the source is a table. It lives until the import is run again or freed.
 */
columnimport_exported const char *columnimport_file_problem(columnimport_import *import);

/**
 * The position of the source column that is matched to an application column. It tells columns
 * apart also where their names are equal or empty, or where they have none.
 *
 * @param import  the import
 * @param column  the number of the application column
 * @return a number from 0 to one less than columnimport_source_column_count; columnimport_none if
 *         no column of the source is matched; columnimport_invalid after wrong use
 */
columnimport_exported int32_t columnimport_match_position(columnimport_import *import,
                                                          int32_t column);

/**
 * The number of the field, in each row of the source, that is matched to an application column.
 *
 * It differs from the position where the first line does. The position counts the line's columns as
 * the dialog cuts them: at each delimiter, also between double quotes, and at a run of tabs or
 * blanks once. The field is counted as a reader of rows does that honours double quotes (RFC 4180):
 * delimiters in a quoted field are text, doubled quotes are one, and a run of tabs is as many
 * delimiters. Of a table it is the position.
 *
 *     "From, m",To,Au    has the columns From | m | To | Au, and they are in the fields 0, 0, 1, 2
 *
 * Readers don't agree where quotes follow blanks and hold a delimiter, where a quote does not close
 * in the line, behind a field with text after its closing quote, behind blanks that separate and
 * stand in a run or at the beginning, and behind a carriage return in the midst of the line. From
 * there on no field is told. A reader that takes a run of blanks as one delimiter has the position.
 *
 * It is told of the first line as the run read it, without a byte-order mark.
 *
 * @param import  the import
 * @param column  the number of the application column
 * @return a number from 0; columnimport_none if no column of the source is matched, or if its field
 *         can't be told; columnimport_invalid after wrong use
 */
columnimport_exported int32_t columnimport_match_field(columnimport_import *import, int32_t column);

/**
 * How an application column came by its match. What tells a guess from a certainty:
 *
 *     if (columnimport_match_origin(import, column) == columnimport_origin_similar) {
 *         ask_the_person(column, columnimport_match_score(import, column));
 *     }
 *
 * @param import  the import
 * @param column  the number of the application column
 * @return one of the origins; columnimport_none if there is no match; columnimport_invalid after
 *         wrong use
 */
columnimport_exported int32_t columnimport_match_origin(columnimport_import *import,
                                                        int32_t column);

/**
 * How much the two names of a guess have in common, as the matcher compared them. It counts letters
 * and knows no meaning: a good score makes no guess certain.
 *
 * @param import  the import
 * @param column  the number of the application column
 * @return above 0.4 and below 1 if the origin is columnimport_origin_similar; otherwise -1, which
 * is columnimport_none; -2, which is columnimport_invalid, after wrong use
 */
columnimport_exported double columnimport_match_score(columnimport_import *import, int32_t column);

/**
 * The name that is matched to an application column: that of the source column, or Column1, Column2
 * and so on where the first line holds no titles. A text that a person dragged in from another
 * program is a name without a position, unless a source column is called so.
 *
 * @param      import  the import
 * @param      column  the number of the application column
 * @param[out] length  the number of bytes, 0 if there is no match; may be null
 * @return the bytes; null if there is no match, and after wrong use. They live until the import is
 *         run again or freed.
 */
columnimport_exported const char *columnimport_match_name(columnimport_import *import,
                                                          int32_t column, int64_t *length);

/**
 * The delimiter as it was left.
 *
 * @return the byte as a number from 0 to 255; columnimport_invalid after wrong use
 */
columnimport_exported int32_t columnimport_delimiter(columnimport_import *import);

/**
 * Whether the first line holds titles, as it was left.
 *
 * @return 0 or 1, of a table always 1; columnimport_invalid after wrong use
 */
columnimport_exported int32_t columnimport_first_line_holds_titles(columnimport_import *import);

/** The number of the source's columns; columnimport_invalid after wrong use. */
columnimport_exported int32_t columnimport_source_column_count(columnimport_import *import);

/**
 * The name of one of the source's columns: a table's, or the field of the file's first line, with
 * or without titles in it, as it is cut at the delimiter as this was left, without blanks around it
 * and without double quotes. A byte-order mark in front of the first one is no part of it.
 *
 * @param      import  the import
 * @param      column  the position of the source column
 * @param[out] length  the number of bytes; may be null
 * @return the bytes, also of an empty name; null after wrong use. They live until the import is run
 *         again or freed.
 */
columnimport_exported const char *columnimport_source_column(columnimport_import *import,
                                                             int32_t column, int64_t *length);

#ifdef __cplusplus
}
#endif

#endif
