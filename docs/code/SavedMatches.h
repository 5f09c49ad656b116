// SPDX-License-Identifier: MIT

#pragma once

#include <wxImportCSVDialogPeer.h>

#include <string>
#include <vector>

/// What a host keeps of one source from one import to the next.
class SavedMatches {
public:
    bool import(columnimport::HostWindow window, const std::string &fileName);

private:
    std::vector<std::string> m_matches; // none at first: a proposal is made
    char m_delimiter = ',';
    bool m_firstLineHoldsTitles = true;
};
