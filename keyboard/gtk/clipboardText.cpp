// SPDX-License-Identifier: MIT

#include "dragParts.h" // of the platform
#include "keyboard/clipboard.h"
#include "names/nameText.h"

#include <algorithm>
#include <memory>
#include <vector>

#include <gtk/gtk.h>

namespace columnimport {

namespace {

void takeText(GtkClipboard *, GtkSelectionData *data, void *asked) {
    const std::unique_ptr<TextAnswer> answer(static_cast<TextAnswer *>(asked));
    const int length = gtk_selection_data_get_length(data);
    if (length <= 0) {
        (*answer)(std::nullopt);
        return;
    }
    const auto *bytes = reinterpret_cast<const char *>(gtk_selection_data_get_data(data));
    (*answer)(decoded(std::string(bytes, static_cast<std::size_t>(length))));
}

void takeFormats(GtkClipboard *clipboard, GdkAtom *formats, int count, void *asked) {
    const wxDataFormat format =
        bestTextFormat(std::vector<wxDataFormat>(formats, formats + std::max(count, 0)));
    if (format != wxDataFormat()) {
        gtk_clipboard_request_contents(clipboard, format, takeText, asked);
        return;
    }
    const std::unique_ptr<TextAnswer> answer(static_cast<TextAnswer *>(asked));
    (*answer)(std::nullopt);
}

} // namespace

// The toolkit's own clipboard would block for up to half a minute per format.
void requestClipboardText(const TextAnswer &answer) {
    gtk_clipboard_request_targets(gtk_clipboard_get(GDK_SELECTION_CLIPBOARD), takeFormats,
                                  std::make_unique<TextAnswer>(answer).release());
}

} // namespace columnimport
