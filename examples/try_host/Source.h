#pragma once

#include <string>
#include <vector>

/// Something that can be imported: a delimited file, or a table that a database connection offers.
struct Source {
    std::string title;
    std::vector<std::string> appColumns;
    std::string fileName; ///< path of the file, or name of the table
    std::vector<std::string>
        tableColumns;     ///< what the database says of the table; empty for a file
    char delimiter = ','; ///< what the first import of a file starts with
    bool firstLineHoldsTitles = true;

    bool isTable() const { return !tableColumns.empty(); }
};
