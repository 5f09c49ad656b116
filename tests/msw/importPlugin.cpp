// SPDX-License-Identifier: MIT

// A host's plug-in, the only part that uses the library.

#include <wxImportCSVDialogPeer.h>

extern "C" __declspec(dllexport) void importNames(const std::string &path,
                                                  std::vector<std::string> &matches) {
    bool useSavedMatches = false;
    bool firstLineHeader = true;
    char delimiter = ',';
    wxImportCSVDialogPeer().showWindow(nullptr, "Import", {"holename", "dip"}, path,
                                       &useSavedMatches, &matches, &delimiter, &firstLineHeader,
                                       900, 900);
}
