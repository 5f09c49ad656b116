// Measures the window and prints a table in Markdown. Arguments such as 100x2000 (application
// columns by file columns) or 100xline (a file of 64 MB that is one line) replace its rows.

#include "bench/columnNames.h"
#include "bench/window/Import.h"
#include "bench/window/Showing.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include <gtk/gtk.h>
#include <wx/thread.h>
#include <wx/utils.h>
#include <wx/versioninfo.h>
#include <wxImportCSVDialogPeer.h>

using columnimport::bench::Delay;
using columnimport::bench::Import;

namespace {

using Names = std::vector<std::string>;

/// The median of each figure of `work`, which is done once more before, to warm up.
Delay median(int repetitions, const std::function<Delay()> &work) {
    work();
    std::vector<double> onScreen;
    std::vector<double> atRest;
    for (int i = 0; i < repetitions; ++i) {
        const Delay delay = work();
        onScreen.push_back(delay.onScreen);
        atRest.push_back(delay.atRest);
    }
    const auto middle = [](std::vector<double> &values) {
        std::sort(values.begin(), values.end());
        return values[values.size() / 2];
    };
    return {middle(onScreen), middle(atRest)};
}

std::string processor() {
    std::ifstream info("/proc/cpuinfo");
    for (std::string line; std::getline(info, line);) {
        if (line.rfind("model name", 0) == 0) {
            return line.substr(line.find(':') + 2);
        }
    }
    return "unknown processor";
}

void printHead(double empty) {
    const wxVersionInfo toolkit = wxGetLibraryVersionInfo();
    std::printf("%s, %d processors; compiler %s; wxWidgets %d.%d.%d with GTK %u.%u.%u.\n\n",
                processor().c_str(), wxThread::GetCPUCount(), __VERSION__, toolkit.GetMajor(),
                toolkit.GetMinor(), toolkit.GetMicro(), gtk_get_major_version(),
                gtk_get_minor_version(), gtk_get_micro_version());
    std::printf("| Application columns | File columns | Opened | Times empty | At rest | Typed | "
                "At rest |\n|--:|--:|--:|--:|--:|--:|--:|\n");
    std::printf("| empty dialog | | %.0f ms | 1 | | | |\n", empty);
}

void printRow(GtkWidget *host, const std::string &row, double empty) {
    const auto cross = row.find('x');
    const std::string appCount = row.substr(0, cross);
    const std::string fileCount = row.substr(cross + 1);
    const bool isLine = fileCount == "line";
    const Names titles = isLine ? Names{columnimport::bench::endlessName(64U << 20U)}
                                : columnimport::bench::columnNames(std::stoul(fileCount), 2);
    const Import import(std::stoul(appCount), titles);
    const int repetitions = isLine || titles.size() > 20000 ? 3 : 9;

    const Delay opened = median(repetitions, [&] { return open(host, import); });
    std::printf("| %s | %s | %.0f ms | %.2f | %.0f ms |", appCount.c_str(),
                isLine ? "one, of 64 MB" : fileCount.c_str(), opened.onScreen,
                opened.onScreen / empty, opened.atRest);
    std::fflush(stdout);
    if (isLine) {
        std::printf(" | |\n");
        return;
    }
    const Delay typed = median(repetitions, [&] { return typeDelimiter(host, import); });
    std::printf(" %.0f ms | %.0f ms |\n", typed.onScreen, typed.atRest);
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
            rows = {"0x0",       "100x10",    "100x300",    "100x2000",
                    "2000x2000", "100x20000", "100x100000", "100xline"};
        }
        const double empty =
            median(15, [host] { return columnimport::bench::openEmpty(host); }).onScreen;
        printHead(empty);
        for (const std::string &row : rows) {
            printRow(host, row, empty);
        }
        return EXIT_SUCCESS;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "columnimport_window_bench: %s\n", error.what());
        return EXIT_FAILURE;
    }
}
