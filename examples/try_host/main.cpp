// A host to try the dialog in.
//   try_host          shows the samples
//   try_host FILE     imports one file at once, prints what came back and ends

#include "examples/try_host/TryWindow.h"
#include "examples/try_host/printResult.h"
#include "examples/try_host/sources.h"

#include <clocale>
#include <iostream>

namespace {

gboolean importAndEnd(void *data) {
    auto &window = *static_cast<TryWindow *>(data);
    const ImportResult &result = window.importChosen();
    printResult(std::cout, window.chosen().source(), result);
    gtk_main_quit();
    return G_SOURCE_REMOVE;
}

void showSamples(wxImportCSVDialogPeer &peer) {
    TryWindow window(peer, sampleSources());
    gtk_main();
}

void importFile(wxImportCSVDialogPeer &peer, const char *path) {
    TryWindow window(peer, {sourceOfFile(path)});
    g_idle_add(importAndEnd, &window);
    gtk_main();
}

} // namespace

int main(int argc, char **argv) {
    std::setlocale(LC_ALL, "");
    // In front of gtk_init: behind it, GTK warns that the toolkit comes too late to keep it from
    // setting the locale.
    wxImportCSVDialogPeer peer;
    gtk_init(&argc, &argv);
    if (argc > 2) {
        std::cerr << "usage: " << argv[0] << " [FILE]\n";
        return 2;
    }
    if (argc == 2) {
        importFile(peer, argv[1]);
    } else {
        showSamples(peer);
    }
    return 0;
}
