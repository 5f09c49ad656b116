// A host that is linked to neither the library nor its toolkit: a plug-in brings both in, and may
// be taken out and brought in again. What the host has set for its process stays as it was.

#include "tests/ScratchFile.h"

#include <atomic>
#include <clocale>
#include <cstdlib>
#include <functional>
#include <thread>
#include <vector>

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <gtk/gtk.h>

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

namespace {

using Names = std::vector<std::string>;
using ImportNames = void(GtkWidget *, const std::string &, Names &);

class Plugin {
public:
    Plugin() : m_file(dlopen(IMPORT_PLUGIN, RTLD_NOW | RTLD_LOCAL)) {}
    ~Plugin() { dlclose(m_file); }
    Plugin(const Plugin &) = delete;
    Plugin &operator=(const Plugin &) = delete;

    ImportNames *entry() const {
        return m_file == nullptr ? nullptr
                                 : reinterpret_cast<ImportNames *>(dlsym(m_file, "importNames"));
    }

private:
    void *m_file;
};

bool isNamed(Display *screen, Window window, const std::string &title) {
    char *name = nullptr;
    const bool is = XFetchName(screen, window, &name) != 0 && name == title;
    XFree(name);
    return is;
}

bool hasFocus(Display *screen, const std::string &title) {
    Window window = None;
    int revert = 0;
    XGetInputFocus(screen, &window, &revert);
    while (window != None && window != PointerRoot && !isNamed(screen, window, title)) {
        Window root = None;
        Window parent = None;
        Window *children = nullptr;
        unsigned count = 0;
        XQueryTree(screen, window, &root, &parent, &children, &count);
        XFree(children);
        window = parent;
    }
    return window != None && window != PointerRoot;
}

/// Presses Escape as soon as the dialog takes keys.
void leaveDialog(const std::atomic<bool> &isOver) {
    Display *screen = XOpenDisplay(nullptr);
    while (!isOver && !hasFocus(screen, "Import")) {
        std::this_thread::yield();
    }
    const unsigned escape = XKeysymToKeycode(screen, XK_Escape);
    XTestFakeKeyEvent(screen, escape, True, 0);
    XTestFakeKeyEvent(screen, escape, False, 0);
    XCloseDisplay(screen);
}

int onXError(Display *, XErrorEvent *) {
    return 0;
}

void onLog(const char *, GLogLevelFlags, const char *, void *) {}

void clearAllButDisplay() {
    if (const char *display = getenv("DISPLAY")) {
        const std::string kept = display;
        clearenv();
        setenv("DISPLAY", kept.c_str(), 1);
    }
}

struct Host {
    const char *name;
    std::function<void()> prepare;
};

class PluginHost : public testing::TestWithParam<Host> {};

} // namespace

TEST_P(PluginHost, KeepsItsStateWhileThePluginComesAndGoes) {
    unsetenv("LC_ALL");
    setenv("LANG", "C.UTF-8", 1);
    GetParam().prepare();
    const std::string locale = std::setlocale(LC_ALL, nullptr);
    g_log_set_default_handler(onLog, nullptr);
    GtkWidget *window = nullptr;
    if (gdk_display_get_default() != nullptr) {
        window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
        gtk_widget_show(window);
    }

    const ScratchFile file("BHID,Dip\n");
    for (int time = 0; time < 2; ++time) {
        // As it opens its first display, GTK sets a handler of its own.
        const bool hasDisplay = gdk_display_get_default() != nullptr;
        XSetErrorHandler(onXError);
        const Plugin plugin;
        ASSERT_NE(plugin.entry(), nullptr) << dlerror();
        std::atomic<bool> isOver = false;
        std::thread person(leaveDialog, std::cref(isOver));
        Names matches;
        plugin.entry()(window, file.path(), matches);
        isOver = true;
        person.join();
        EXPECT_EQ(matches, (Names{"BHID", "Dip"}));
        EXPECT_EQ(std::setlocale(LC_ALL, nullptr), locale);
        EXPECT_TRUE(!hasDisplay || XSetErrorHandler(nullptr) == onXError);
        EXPECT_EQ(g_log_set_default_handler(onLog, nullptr), onLog);
    }
}

INSTANTIATE_TEST_SUITE_P(
    , PluginHost,
    testing::Values(Host{"WithNothing", [] {}}, Host{"WithoutAnEnvironment", clearAllButDisplay},
                    Host{"WithALocale", [] { std::setlocale(LC_ALL, ""); }},
                    Host{"WithOneCategory", [] { std::setlocale(LC_NUMERIC, ""); }},
                    Host{"WithGtkStarted", [] { gtk_init(nullptr, nullptr); }}),
    [](const testing::TestParamInfo<Host> &host) { return std::string(host.param.name); });
