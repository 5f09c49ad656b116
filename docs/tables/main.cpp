// SPDX-License-Identifier: MIT

// Writes the tables into the documents, each between its two marks:
//     <!-- table: scores -->
//     <!-- end of table -->
//   write_tables PAGE...           writes them
//   write_tables --check PAGE...   fails if a table differs from the matcher's results

#include "docs/tables/tables.h"

#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <vector>

namespace {

const std::map<std::string, std::function<std::string()>> tables = {
    {"synonyms", synonymsTable}, {"scores", scoresTable}, {"votes", votesTable}};

const std::string beginMark = "<!-- table: ";
const std::string markEnd = " -->\n";
const std::string endMark = "<!-- end of table -->";

std::string withTables(std::string page) {
    std::size_t begin = page.find(beginMark);
    if (begin == std::string::npos) {
        throw std::runtime_error("there is no mark of a table");
    }
    for (; begin != std::string::npos; begin = page.find(beginMark, begin + 1)) {
        const std::size_t name = begin + beginMark.size();
        const std::size_t nameEnd = page.find(markEnd, name);
        const std::size_t table = nameEnd + markEnd.size();
        const std::size_t end = page.find(endMark, begin);
        if (end == std::string::npos || nameEnd > end) {
            throw std::runtime_error("a mark is not closed");
        }
        page.replace(table, end - table, tables.at(page.substr(name, nameEnd - name))());
    }
    return page;
}

std::string contentOf(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

int main(int argumentCount, char **arguments) {
    std::vector<std::string> pages(arguments + 1, arguments + argumentCount);
    const bool onlyCheck = !pages.empty() && pages.front() == "--check";
    if (onlyCheck) {
        pages.erase(pages.begin());
    }
    bool ok = true;
    for (const std::string &path : pages) {
        try {
            const std::string page = contentOf(path);
            const std::string renewed = withTables(page);
            if (!onlyCheck) {
                std::ofstream(path, std::ios::binary) << renewed;
            } else if (renewed != page) {
                throw std::runtime_error("a table is not as the matcher has it");
            }
        } catch (const std::exception &problem) {
            std::cerr << path << ": " << problem.what() << '\n';
            ok = false;
        }
    }
    return ok ? 0 : 1;
}
