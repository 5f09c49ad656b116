#pragma once

#include <gtk/gtk.h>

namespace columnimport::bench {

class Import;

/// Milliseconds until something is on the screen, and until nothing is left to be done.
struct Delay {
    double onScreen;
    double atRest;
};

/// From the call that shows an empty dialog to its first frame. It goes the same way as the
/// library's dialogs and has their size.
Delay openEmpty(GtkWidget *host);

/// From `showWindow` to the first frame that shows both lists.
Delay open(GtkWidget *host, const Import &import);

/// From a comma, typed into the field for the delimiter in the place of a blank, to the first frame
/// that shows both lists anew.
Delay typeDelimiter(GtkWidget *host, const Import &import);

} // namespace columnimport::bench
