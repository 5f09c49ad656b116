// SPDX-License-Identifier: MIT

// Measures the window and prints a table in Markdown. Arguments such as 100x2000 (application
// columns by file columns) or 100xline (a file of 64 MB that is one line) replace its rows.

#include "bench/columnNames.h"
#include "bench/window/Import.h"
#include "bench/window/Showing.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <functional>
#include <string>
#include <vector>

#include <gtk/gtk.h>
#include <wxImportCSVDialogPeer.h>

using namespace columnimport::bench;

namespace {

using Names = std::vector<std::string>;

/// The median of the results of `work`, after one extra run to warm up.
double median(int repetitions, const std::function<Milliseconds()> &work) {
    work();
    std::vector<Milliseconds> delays(static_cast<std::size_t>(repetitions));
    std::generate(delays.begin(), delays.end(), work);
    std::sort(delays.begin(), delays.end());
    return delays[delays.size() / 2].count();
}

void printRow(GtkWidget *host, const std::string &row) {
    const auto cross = row.find('x');
    const std::string appCount = row.substr(0, cross);
    const std::string fileCount = row.substr(cross + 1);
    const bool isLine = fileCount == "line";
    const Names titles =
        isLine ? Names{endlessName(64U << 20U)} : columnNames(std::stoul(fileCount), 2);
    const Import import(std::stoul(appCount), titles);
    const int repetitions = isLine || titles.size() > 20000 ? 3 : 9;

    std::printf("| %s | %s | %.0f ms |", appCount.c_str(),
                isLine ? "one, of 64 MB" : fileCount.c_str(),
                median(repetitions, [&] { return open(host, import); }));
    // Neither delimiter cuts such a line, so nothing new would be shown.
    if (isLine) {
        std::printf(" |\n");
    } else {
        std::printf(" %.0f ms |\n",
                    median(repetitions, [&] { return typeDelimiter(host, import); }));
    }
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv) {
    try {
        const wxImportCSVDialogPeer peer;
        gtk_init(&argc, &argv);
        GtkWidget *host = gtk_window_new(GTK_WINDOW_TOPLEVEL);
        gtk_widget_show(host);

        Names rows(argv + 1, argv + argc);
        if (rows.empty()) {
            rows = {"0x0",       "100x10",  "0x300",     "100x300",    "100x2000",
                    "2000x2000", "0x20000", "100x20000", "100x100000", "100xline"};
        }
        std::printf("| Application columns | File columns | Opened | Typed |\n|--:|--:|--:|--:|\n");
        for (const std::string &row : rows) {
            printRow(host, row);
        }
        return EXIT_SUCCESS;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "columnimport_window_bench: %s\n", error.what());
        return EXIT_FAILURE;
    }
}
