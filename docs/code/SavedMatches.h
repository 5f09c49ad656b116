// SPDX-License-Identifier: MIT

#pragma once

#include <wxImportCSVDialogPeer.h>

#include <string>
#include <vector>

/// What a host saves about one source between imports.
class SavedMatches {
public:
    bool import(columnimport::HostWindow window, const std::string &fileName);

private:
    std::vector<std::string> m_matches; // none at first: a proposal is made
    char m_delimiter = ',';
    bool m_firstLineHoldsTitles = true;
};
