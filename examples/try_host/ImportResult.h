#pragma once

#include <string>
#include <vector>

/// What one run of the dialog handed back. For a table, the delimiter and the first line are what
/// they were.
struct ImportResult {
    bool ok;
    std::vector<std::string> matches; ///< one per application column; empty where there is none
    char delimiter;
    bool firstLineHoldsTitles;
};
