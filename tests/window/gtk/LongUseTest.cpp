// SPDX-License-Identifier: MIT

// A host that is used all day: hundreds of imports in one process leak nothing. The variable
// COLUMNIMPORT_RUNS changes their number.

#include "tests/window/FileRun.h"

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <iterator>

#include <gtk/gtk.h>
#include <malloc.h>
#include <sys/resource.h>
#include <wx/toplevel.h>

#include <gdk/gdkx.h>

namespace {

/// What the first runs load for good: fonts, themes, cursors, helper windows of drags.
constexpr int runsToWarmUp = 10;

/// What each later run may add: the toolkit keeps 3 KB of every drag.
constexpr std::ptrdiff_t bytesPerRun = 1024;

/// The resources of the process between two runs.
struct Holdings {
    std::ptrdiff_t bytes;
    std::ptrdiff_t descriptors;
    std::ptrdiff_t hostWindows;
    std::size_t toolkitWindows;
};

Holdings holdings() {
    malloc_trim(0);
    const struct mallinfo2 memory = mallinfo2();
    GList *windows = gtk_window_list_toplevels();
    const Holdings now{static_cast<std::ptrdiff_t>(memory.uordblks + memory.hblkhd),
                       std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {}),
                       static_cast<std::ptrdiff_t>(g_list_length(windows)),
                       wxTopLevelWindows.GetCount()};
    g_list_free(windows);
    return now;
}

std::size_t windowsBelow(Display *screen, Window window) {
    Window root = None;
    Window parent = None;
    Window *children = nullptr;
    unsigned count = 0;
    XQueryTree(screen, window, &root, &parent, &children, &count);
    std::size_t sum = count;
    for (unsigned i = 0; i < count; ++i) {
        sum += windowsBelow(screen, children[i]);
    }
    XFree(children);
    return sum;
}

/// The windows of all programs on the screen.
std::size_t windowsOnScreen() {
    Display *screen = gdk_x11_display_get_xdisplay(gdk_display_get_default());
    return windowsBelow(screen, XDefaultRootWindow(screen));
}

} // namespace

TEST(LongUse, HoldsANameAsLargeAsItsFileTwiceAtMost) {
    const auto peakInMegabytes = [] {
        struct rusage usage = {};
        getrusage(RUSAGE_SELF, &usage);
        return usage.ru_maxrss >> 10U;
    };
    FileRun run("", {"dip"});
    constexpr unsigned megabytes = 128;
    std::filesystem::resize_file(run.fileName, megabytes << 20U);
    const long before = peakInMegabytes();
    run.confirmAfter([](Person &person) {
        person.typeDelimiter(';');
        person.typeDelimiter('|');
    });
    EXPECT_EQ(run.delimiter, '|');
    EXPECT_LT(peakInMegabytes() - before, 2 * megabytes + 128);
}

TEST(LongUse, LeaksNoMemoryDescriptorOrWindow) {
    const char *wanted = std::getenv("COLUMNIMPORT_RUNS");
    const int runs = wanted != nullptr ? std::stoi(wanted) : 250;
    const wxImportCSVDialogPeer peer;
    FileRun run("BHID,Dip,Au\n", {"holename", "dip", "azimuth"});
    Holdings atFirst{};
    std::size_t windowsAtFirst = 0;
    for (int done = 0; done < runs && !HasFailure(); ++done) {
        if (done == runsToWarmUp) {
            atFirst = holdings();
            windowsAtFirst = windowsOnScreen();
        }
        const bool isConfirmed = done % 2 == 0;
        EXPECT_EQ(run.show(
                      [done, isConfirmed](Person &person) {
                          if (done % 10 == 0) {
                              person.drag(Person::fileRow(2), Person::matchRow(2));
                          }
                          (isConfirmed ? pressOk : pressCancel)(person);
                      },
                      peer),
                  isConfirmed);
        EXPECT_EQ(run.matches, (Names{"BHID", "Dip", done % 10 == 0 ? "Au" : ""}));
    }
    const Holdings atLast = holdings();
    const std::ptrdiff_t grown = atLast.bytes - atFirst.bytes;
    const int counted = runs - runsToWarmUp;
    std::cout << counted << " runs: " << grown << " bytes more than " << atFirst.bytes << ", "
              << atLast.descriptors << " descriptors, " << atLast.hostWindows << " windows\n";
    EXPECT_LT(grown, counted * bytesPerRun);
    EXPECT_EQ(atLast.descriptors, atFirst.descriptors);
    EXPECT_EQ(atLast.hostWindows, atFirst.hostWindows);
    EXPECT_EQ(atLast.toolkitWindows, 0U);
    // The window manager removes a frame some time after its window.
    poll("no window is left on the screen",
         [windowsAtFirst] { return windowsOnScreen() <= windowsAtFirst; });
}
