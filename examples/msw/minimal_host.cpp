// SPDX-License-Identifier: MIT

#include <wxImportCSVDialogPeer.h>

#include <filesystem>
#include <iostream>

#include <windows.h>

int wmain(int argc, wchar_t **argv) {
    wxImportCSVDialogPeer peer;
    HWND window = CreateWindowW(L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50, 800,
                                600, nullptr, nullptr, nullptr, nullptr);

    const std::vector<std::string> columns = {"holename", "easting", "northing", "elevation"};
    const std::string path = argc > 1 ? std::filesystem::path(argv[1]).u8string() : "";
    std::vector<std::string> matches;
    bool useSavedMatches = false;
    bool firstLineHeader = true;
    char delimiter = ',';

    const bool ok = peer.showWindow(window, "Import collars", columns, path, &useSavedMatches,
                                    &matches, &delimiter, &firstLineHeader, 900, 840);
    for (std::size_t i = 0; i < matches.size(); ++i) {
        std::cout << columns[i] << " <- " << matches[i] << '\n';
    }
    return ok ? 0 : 1;
}
