// SPDX-License-Identifier: MIT

// A host that links neither the library nor its toolkit: a plug-in loads both, and may be unloaded
// and loaded again. The host's settings of its process stay.

#include "tests/ScratchFile.h"

#include <clocale>
#include <cstdlib>
#include <functional>
#include <vector>

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <gtk/gtk.h>

#include <X11/Xlib.h>

namespace {

using Names = std::vector<std::string>;
using ImportNames = void(GtkWidget *, const std::string &, Names &);

int onXError(Display *, XErrorEvent *) {
    return 0;
}

void onLog(const char *, GLogLevelFlags, const char *, void *) {}

void clearAllButDisplay() {
    const char *display = getenv("DISPLAY");
    const std::string kept = display != nullptr ? display : "";
    clearenv();
    setenv("DISPLAY", kept.c_str(), 1);
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

    const ScratchFile file("BHID,Dip\n");
    for (int time = 0; time < 2; ++time) {
        // GTK sets a handler of its own when it opens its first display.
        const bool hasDisplay = gdk_display_get_default() != nullptr;
        XSetErrorHandler(onXError);
        void *plugin = dlopen(IMPORT_PLUGIN, RTLD_NOW | RTLD_LOCAL);
        ASSERT_NE(plugin, nullptr) << dlerror();
        Names matches;
        reinterpret_cast<ImportNames *>(dlsym(plugin, "importNames"))(nullptr, file.path(),
                                                                      matches);
        dlclose(plugin);
        EXPECT_EQ(matches, (Names{"BHID", "Dip"}));
        EXPECT_EQ(std::setlocale(LC_ALL, nullptr), locale);
        EXPECT_TRUE(!hasDisplay || XSetErrorHandler(nullptr) == onXError);
        EXPECT_EQ(g_log_set_default_handler(onLog, nullptr), onLog);
    }
}

INSTANTIATE_TEST_SUITE_P(
    , PluginHost,
    testing::Values(Host{"WithoutAnEnvironment", clearAllButDisplay},
                    Host{"WithALocale", [] { std::setlocale(LC_ALL, ""); }},
                    Host{"WithOneCategory", [] { std::setlocale(LC_NUMERIC, ""); }},
                    Host{"WithGtkStarted", [] { gtk_init(nullptr, nullptr); }}),
    [](const testing::TestParamInfo<Host> &host) { return std::string(host.param.name); });
