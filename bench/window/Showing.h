// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>

#include <gtk/gtk.h>

namespace columnimport::bench {

class Import;

using Milliseconds = std::chrono::duration<double, std::milli>;

/// From `showWindow` to the first frame that shows both lists.
Milliseconds open(GtkWidget *host, const Import &import);

/// From a comma, typed into the field for the delimiter in the place of a blank, to the first frame
/// that shows both lists anew.
Milliseconds typeDelimiter(GtkWidget *host, const Import &import);

} // namespace columnimport::bench
