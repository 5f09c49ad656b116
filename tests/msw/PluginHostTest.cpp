// SPDX-License-Identifier: MIT

// A host that links neither the library nor its toolkit: a plug-in loads both, and may be unloaded
// and loaded again.

#include "person/msw/Xdotool.h"
#include "tests/ScratchFile.h"

#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <windows.h>

namespace {

using Names = std::vector<std::string>;
using ImportNames = void(const std::string &, Names &);

void leaveDialog() {
    Xdotool hand;
    const ULONGLONG end = GetTickCount64() + 20000;
    while (!hand.hasKeys("Import") && GetTickCount64() < end) {
    }
    hand.order("key Escape");
}

} // namespace

TEST(PluginHost, MayUnloadAndReloadItsPlugin) {
    const ScratchFile file("BHID,Dip\n");
    for (int time = 0; time < 2; ++time) {
        HMODULE plugin = LoadLibraryW(L"columnimport_import_plugin.dll");
        ASSERT_NE(plugin, nullptr) << GetLastError();
        auto *importNames = reinterpret_cast<ImportNames *>(
            reinterpret_cast<void *>(GetProcAddress(plugin, "importNames")));
        std::thread person(leaveDialog);
        Names matches;
        importNames(file.path(), matches);
        person.join();
        EXPECT_EQ(matches, (Names{"BHID", "Dip"}));
        FreeLibrary(plugin);
        EXPECT_EQ(GetModuleHandleW(L"columnimport_import_plugin.dll"), nullptr);
        EXPECT_NE(GetModuleHandleW(L"columnimport.dll"), nullptr);
    }
}
