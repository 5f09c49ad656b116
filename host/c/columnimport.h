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
 * The library's interface in plain C99, for hosts in any language and built by any compiler.
 *
 * An import is an object that the host creates, fills, runs and reads:
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
 * columnimport_propose runs it without a window, a display or a toolkit. columnimport_show runs it
 * with a dialog in which the user corrects the proposal. A run keeps the content of the import,
 * which may be filled further and run again.
 *
 * Arguments: `import` is the import that a call refers to, and `column` an application column,
 * counted from 0 in the order of columnimport_add_column. Arguments are input, except where
 * [out] is written. All numbers are signed, and none that is passed in may be negative.
 *
 * Texts: column names of a source, and matches, are bytes in any encoding, with their length. They
 * may contain zero bytes, and a zero byte that the length does not count follows them. The host's
 * names, the title and the path are UTF-8 and end with a zero byte.
 *
 * Ownership: the library copies every text that is passed in during the call; the caller still owns
 * it. The library owns every text that it returns; each function documents how long it lives.
 *
 * Wrong use: a null pointer, a number out of range, a text that is not UTF-8, or a call out of
 * order. The function changes nothing and returns columnimport_wrong_use for an outcome,
 * columnimport_invalid for another number or null for a text, and columnimport_message gives the
 * reason in one sentence. No function throws an exception.
 *
 * Threads: use an import on one thread at a time; different imports may be used at the same time.
 * Call columnimport_show and columnimport_show_over_x11 on the user-interface thread; call all
 * other functions on any thread.
 */

/** One import: the columns of both sides, and the result of the last run. */
typedef struct columnimport_import columnimport_import;

/** The outcome of a call. Further values may be added. */
enum {
    /** The call succeeded; for columnimport_show: the user pressed OK. */
    columnimport_ok = 0,
    /** The user closed the dialog in another way. The result can be read. */
    columnimport_cancelled = 1,
    /** There is no display to show a dialog on. */
    columnimport_no_display = 2,
    /** Another dialog of the library is open in this process. */
    columnimport_already_open = 3,
    /** The call was wrong use; columnimport_message gives the reason. */
    columnimport_wrong_use = 4,
    /** There was no memory, or an unexpected error; columnimport_message gives the reason. */
    columnimport_failed = 5
};

/** Values in place of a missing position or another missing number. */
enum {
    /** There is no position, because no column of the source is matched; or there is no field,
     * origin, score or likely delimiter. */
    columnimport_none = -1,
    /** The call was wrong use; columnimport_message gives the reason. */
    columnimport_invalid = -2
};

/** The origin of a match. Further values may be added. */
enum {
    /** The two names are the same except for case and punctuation. */
    columnimport_origin_same = 1,
    /** The library knows the two names as synonyms. */
    columnimport_origin_synonym = 2,
    /** The source column's name is one of the host's alternatives. */
    columnimport_origin_alternative = 3,
    /** The names are only similar: a guess, which the user should check. */
    columnimport_origin_similar = 4,
    /** The first line holds no titles, and columns are paired in their order. */
    columnimport_origin_in_order = 5,
    /** The source has a column with the saved name. */
    columnimport_origin_saved = 6,
    /** The user chose it in the dialog. */
    columnimport_origin_by_hand = 7,
    /** The user dragged or pasted a text from another program that names no source column. */
    columnimport_origin_foreign = 8
};

/* ---- The library ---- */

/** The library's version, such as "0.4.0". It lives as long as the library. */
columnimport_exported const char *columnimport_version(void);

/**
 * The library's version in numbers. A pointer may be null; that number is not written.
 *
 * @param[out] major, minor, patch  0, 4 and 1 in "0.4.1"
 */
columnimport_exported void columnimport_version_numbers(int32_t *major, int32_t *minor,
                                                        int32_t *patch);

/* ---- Creating and freeing an import ---- */

/**
 * Creates an import without columns and without a source. The caller frees it.
 *
 * @return the import; null if there is no memory
 */
columnimport_exported columnimport_import *columnimport_new(void);

/**
 * Frees an import, which must not be used again, and every text that it returned. If its dialog is
 * open, frees it when the dialog is closed. Null does nothing.
 */
columnimport_exported void columnimport_free(columnimport_import *import);

/**
 * The problem with the last call on this import.
 *
 * @return a sentence in English, UTF-8; empty if there was no problem. It lives until the next call
 *         on the import. For a null import, a sentence that says so and lives for ever.
 */
columnimport_exported const char *columnimport_message(columnimport_import *import);

/* ---- Filling it: the application columns ----
 *
 * Each of these returns columnimport_ok, columnimport_wrong_use or columnimport_failed. While the
 * dialog of the import is open, all of them are wrong use. */

/** Sets the text of the dialog's title bar, UTF-8, which is empty by default. */
columnimport_exported int32_t columnimport_set_title(columnimport_import *import,
                                                     const char *title);

/**
 * Sets the size of the dialog's frame, in pixels at 96 dots an inch, from 1. The default is 900 by
 * 840 for a file and 900 by 620 for a table, which shows all controls.
 */
columnimport_exported int32_t columnimport_set_size(columnimport_import *import, int32_t width,
                                                    int32_t height);

/**
 * Adds an application column after the ones added before. `name` is the host's name for it, UTF-8;
 * it may be empty, and names may be equal.
 */
columnimport_exported int32_t columnimport_add_column(columnimport_import *import,
                                                      const char *name);

/**
 * Adds another name for an application column, UTF-8. A source column with this name, except for
 * case and punctuation, counts like one with a synonym that the library knows. A source column with
 * the application column's own name counts first.
 *
 *     columnimport_add_alternative(import, elevation, "RL");
 */
columnimport_exported int32_t columnimport_add_alternative(columnimport_import *import,
                                                           int32_t column, const char *name);

/**
 * Sets whether an application column requires a match: 1 for yes, or 0 for no, the default. If at
 * least one column does, OK checks the matches: if a required column has none, or one source column
 * is matched to two application columns, the dialog asks the user once to press OK again.
 */
columnimport_exported int32_t columnimport_set_required(columnimport_import *import, int32_t column,
                                                        int32_t required);

/**
 * Sets whether an application column may be matched by a similar name: 1 for yes, the default, or 0
 * for no. A similar name is a guess: "Zn %" and ni_pct are similar names of different metals. With
 * 0, only the same name, a synonym or an alternative matches, and a refused source column is not
 * matched to another column instead. This does not affect saved matches, pairs in order and the
 * user's own choices.
 */
columnimport_exported int32_t columnimport_set_similar(columnimport_import *import, int32_t column,
                                                       int32_t similar);

/**
 * Sets the match of an earlier import, `length` bytes at `name`, as columnimport_match_name
 * returned it. Null with a length of 0 removes the saved match.
 *
 * If at least one column has a saved match that is not empty and the source has titles, no proposal
 * is made: each column is matched to the first source column with exactly its saved name, or to
 * none. "Reset to Default" in the dialog makes a proposal.
 */
columnimport_exported int32_t columnimport_set_saved_match(columnimport_import *import,
                                                           int32_t column, const char *name,
                                                           int64_t length);

/* ---- Filling it: the source ---- */

/**
 * Makes the delimited file at `path`, UTF-8, the source. Each run opens it, reads only its first
 * lines and closes it.
 */
columnimport_exported int32_t columnimport_set_file(columnimport_import *import, const char *path);

/**
 * Sets the byte that separates the fields of the file, taken literally; the default is ','. If the
 * user changes it in the dialog, a further run still begins with the value set here.
 */
columnimport_exported int32_t columnimport_set_delimiter(columnimport_import *import,
                                                         char delimiter);

/**
 * Sets whether the first line of the file holds titles: 1 for yes, the default, or 0 for no. With
 * 0, the source columns are called Column1, Column2 and so on, and are matched to the application
 * columns in order. A table always has names, whatever is set here.
 */
columnimport_exported int32_t columnimport_set_first_line_holds_titles(columnimport_import *import,
                                                                       int32_t holds);

/**
 * Makes a table with `count` columns the source.
 *
 * `names` are their names in bytes, in the table's order; null is allowed if there are none.
 * `lengths` are the lengths of the names, or null if each name ends with a zero byte.
 */
columnimport_exported int32_t columnimport_set_table(columnimport_import *import,
                                                     const char *const *names,
                                                     const int64_t *lengths, int32_t count);

/**
 * The likely delimiter of the file's first line, whatever was set. Reads nothing else of the file.
 *
 *     int32_t likely = columnimport_likely_delimiter(import);
 *     columnimport_set_delimiter(import, likely == columnimport_none ? ',' : (char)likely);
 *
 * @return the tab, ';', '|', ',' or ' '; columnimport_none if none is likely or the file can't be
 *         read; columnimport_invalid if no file was set, or if there was no memory
 */
columnimport_exported int32_t columnimport_likely_delimiter(columnimport_import *import);

/* ---- Running it ----
 *
 * A run discards the result of the one before and the texts that were returned from it. */

/**
 * Matches without a dialog and without a display. The result is the same as what columnimport_show
 * opens with.
 *
 * @return columnimport_ok, also if the file can't be read (see columnimport_file_problem);
 *         columnimport_wrong_use, for example if no source was set; or columnimport_failed
 */
columnimport_exported int32_t columnimport_propose(columnimport_import *import);

/**
 * Shows the dialog and returns when the user has closed it. The window can't be used meanwhile.
 *
 * Call it on the user-interface thread. The first call in a process initializes the toolkit; a host
 * on GTK keeps its own main loop and its own locale.
 *
 * @param import  the import
 * @param window  the window that the dialog belongs to, or null. On Linux a GtkWidget of GTK 3 that
 *                is a window or is in one, on Windows an HWND
 * @return any of the outcomes. The result can be read only after columnimport_ok and
 *         columnimport_cancelled
 */
columnimport_exported int32_t columnimport_show(columnimport_import *import, void *window);

/**
 * The same over an X11 window, for a host whose windows are not GTK's, such as one in Qt or Tk, or
 * in another process. The window manager keeps the dialog above that window and gives it the keys,
 * and the window gets no clicks while the dialog is open. If the window is destroyed meanwhile, the
 * dialog stays open.
 *
 * GLib's default main context keeps running meanwhile: Qt's windows are served if Qt uses GLib, as
 * it does by default; those of Tk are not.
 *
 * The display is GTK's default X11 display (the variable DISPLAY), even in a Wayland session,
 * unless GTK was initialized on Wayland in this process.
 *
 * @param import  the import
 * @param window  the number of the window; a child window stands for its top-level
 * @return any of the outcomes: columnimport_no_display also if GTK is on Wayland already, and on
 *         Windows; columnimport_wrong_use also if there is no such window
 */
columnimport_exported int32_t columnimport_show_over_x11(columnimport_import *import,
                                                         int64_t window);

/* ---- Reading it ----
 *
 * All of these refer to the last run. If it had no result, or there was none, all but
 * columnimport_outcome and columnimport_column_count are wrong use. While the dialog of the import
 * is open, there is no result yet. */

/** The outcome of the last run; columnimport_invalid if there was none. */
columnimport_exported int32_t columnimport_outcome(columnimport_import *import);

/** The number of application columns that were added. */
columnimport_exported int32_t columnimport_column_count(columnimport_import *import);

/**
 * The reason why the file could not be read.
 *
 * @return the system's reason in UTF-8, such as "No such file or directory"; null if it was read,
 *         or the source is a table. It lives until the import is run again or freed.
 */
columnimport_exported const char *columnimport_file_problem(columnimport_import *import);

/**
 * The position of the source column that is matched to an application column. It distinguishes
 * columns even if their names are equal or empty, or if they have none.
 *
 * @return a number from 0 to one less than columnimport_source_column_count; columnimport_none if
 *         no column of the source is matched
 */
columnimport_exported int32_t columnimport_match_position(columnimport_import *import,
                                                          int32_t column);

/**
 * The number of the field, in each row of the source, that is matched to an application column.
 *
 * The position counts the columns of the first line as the dialog splits it: at each delimiter,
 * even inside double quotes, and once at a run of tabs or blanks. The field is counted as by a
 * parser that honours double quotes (RFC 4180): delimiters in a quoted field are text, doubled
 * quotes are one, and each tab of a run is a delimiter. For a table the field is the position.
 *
 *     "From, m",To,Au    has the columns From | m | To | Au, and they are in the fields 0, 0, 1, 2
 *
 * Parsers disagree if quotes that contain a delimiter follow blanks, if a quote is not closed in
 * the line, after a field with text behind its closing quote, after separating blanks in a run or
 * at the beginning, and after a carriage return inside the line. From there on there is no field.
 * For a parser that treats a run of blanks as one delimiter, use the position.
 *
 * The field refers to the first line as the run read it, without a byte-order mark.
 *
 * @return a number from 0; columnimport_none if no column of the source is matched or parsers
 *         disagree on its field
 */
columnimport_exported int32_t columnimport_match_field(columnimport_import *import, int32_t column);

/**
 * The origin of an application column's match, which distinguishes guesses from certain matches:
 *
 *     if (columnimport_match_origin(import, column) == columnimport_origin_similar) {
 *         ask_the_person(column, columnimport_match_score(import, column));
 *     }
 *
 * @return one of the origins; columnimport_none if there is no match
 */
columnimport_exported int32_t columnimport_match_origin(columnimport_import *import,
                                                        int32_t column);

/**
 * The similarity of the two names of a guess, as the matcher compared them. It compares letters and
 * knows no meaning, so even a good score makes no guess certain.
 *
 * @return above 0.4 and below 1 if the origin is columnimport_origin_similar; otherwise -1, which
 *         is columnimport_none; -2, which is columnimport_invalid, after wrong use
 */
columnimport_exported double columnimport_match_score(columnimport_import *import, int32_t column);

/**
 * The name that is matched to an application column: that of the source column, or Column1, Column2
 * and so on if the first line holds no titles. A text that the user dragged or pasted from another
 * program has no position, unless a source column has this name.
 *
 * @param      import  the import
 * @param      column  the application column
 * @param[out] length  the number of bytes, 0 if there is no match; may be null
 * @return the bytes, until the import is run again or freed; null if there is no match
 */
columnimport_exported const char *columnimport_match_name(columnimport_import *import,
                                                          int32_t column, int64_t *length);

/** The delimiter at the end of the run: the byte as a number from 0 to 255. */
columnimport_exported int32_t columnimport_delimiter(columnimport_import *import);

/** Whether the first line holds titles, at the end of the run: 0 or 1, for a table always 1. */
columnimport_exported int32_t columnimport_first_line_holds_titles(columnimport_import *import);

/** The number of the source's columns. */
columnimport_exported int32_t columnimport_source_column_count(columnimport_import *import);

/**
 * The name of a source column. For a file it is the field of the first line, whether or not that
 * holds titles, split at the delimiter of columnimport_delimiter, without surrounding blanks and
 * double quotes. A byte-order mark before the first name is not part of it.
 *
 * @param      import  the import
 * @param      column  the position of the source column, from 0
 * @param[out] length  the number of bytes; may be null
 * @return the bytes, also of an empty name, until the import is run again or freed
 */
columnimport_exported const char *columnimport_source_column(columnimport_import *import,
                                                             int32_t column, int64_t *length);

#ifdef __cplusplus
}
#endif

#endif
