// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>

#include <gtk/gtk.h>

namespace columnimport::bench {

class Import;

using Milliseconds = std::chrono::duration<double, std::milli>;

/// From `showWindow` to the first frame that shows both lists.
Milliseconds open(GtkWidget *host, const Import &import);

/// From a comma typed over a blank in the delimiter field to the first frame that shows both lists
/// anew.
Milliseconds typeDelimiter(GtkWidget *host, const Import &import);

} // namespace columnimport::bench
