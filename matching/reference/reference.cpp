// SPDX-License-Identifier: MIT

#include "matching/reference/reference.h"

#include <algorithm>
#include <cctype>
#include <map>

namespace columnimport::reference {

std::string normalizeColumnName(std::string name) {
    for (char &byte : name) {
        byte = static_cast<char>(std::tolower(static_cast<unsigned char>(byte)));
    }
    name = replaceAll(name, " %", "_pct");
    name = replaceAll(name, "_%", "_pct");
    name = replaceAll(name, "%", "_pct");
    name = replaceAll(name, "g/t", "gt");
    std::string result;
    for (const char byte : name) {
        const bool kept = (byte >= 'a' && byte <= 'z') || (byte >= '0' && byte <= '9');
        result += kept ? byte : '_';
    }
    return result;
}

std::string replaceAll(std::string text, std::string search, std::string replacement) {
    std::size_t position = text.find(search);
    while (position != std::string::npos) {
        text.replace(position, search.size(), replacement);
        position = text.find(search, position + replacement.size());
    }
    return text;
}

bool areSynonyms(std::string a, std::string b) {
    const std::vector<std::string> eastings = {"x",     "coordx", "xutm",    "utmx",
                                               "utm_x", "x_utm",  "xcollar", "xc"};
    const std::vector<std::string> northings = {"y",     "coordy", "yutm",    "utmy",
                                                "utm_y", "y_utm",  "ycollar", "yc"};
    const std::vector<std::string> elevations = {"z",     "coordz",  "zutm", "utmz",
                                                 "utm_z", "zcollar", "zc"};
    const std::map<std::string, std::vector<std::string>> table = {
        {"holename", {"id", "holeid", "nom", "bhid"}},
        {"easting", eastings},
        {"x", eastings},
        {"northing", northings},
        {"y", northings},
        {"elevation", elevations},
        {"z", elevations},
        {"azimuth", {"bearing", "az", "brg"}},
        {"dip", {"plongee"}},
        {"length", {"profondeur"}},
        {"depth", {"at", "length"}},
        {"xsize", {"xinc"}},
        {"ysize", {"yinc"}},
        {"zsize", {"zinc"}},
        {"fromdepth", {"from"}},
        {"todepth", {"to"}},
        {"duplicate", {"logduplicates"}},
        {"blank", {"logexperimentalblank"}},
        {"standard", {"logexperimentalstandard"}},
        {"standardnominal", {"lognominalstandard"}},
        {"blanknominal", {"lognominalblank"}},
        {"standarderror", {"lognominalstandarderror"}},
    };
    const auto lists = [&table](const std::string &head, const std::string &word) {
        const auto row = table.find(head);
        return row != table.end() &&
               std::find(row->second.begin(), row->second.end(), word) != row->second.end();
    };
    return lists(a, b) || lists(b, a);
}

double columnNameScore(std::string a, std::string b) {
    if (a == b) {
        return 1.0;
    }
    if (areSynonyms(a, b)) {
        return 0.99;
    }
    if (a.size() < 3 || b.size() < 3) {
        return 0.0;
    }
    const auto countShared = [](const std::string &name, std::string other) {
        double shared = 0.0;
        for (const char byte : name) {
            const std::size_t position = other.find(byte);
            if (position != std::string::npos) {
                shared += 1.0;
                other[position] = '#';
            }
        }
        return shared;
    };
    const double sharedA = countShared(a, b);
    const double sharedB = countShared(b, a);
    const auto lengthA = static_cast<double>(a.size());
    const auto lengthB = static_cast<double>(b.size());
    const double run =
        static_cast<double>(longestCommonSubstringLength(a, b, static_cast<std::int32_t>(a.size()),
                                                         static_cast<std::int32_t>(b.size()))) -
        1.0;
    const double partA = 0.5 * sharedA / lengthA + 0.5 * run / lengthA;
    const double partB = 0.5 * sharedB / lengthB + 0.5 * run / lengthB;
    return 0.5 * (partA + partB);
}

std::int32_t longestCommonSubstringLength(std::string a, std::string b, std::int32_t lengthA,
                                          std::int32_t lengthB) {
    const auto rows = static_cast<std::size_t>(lengthA) + 1;
    const auto columns = static_cast<std::size_t>(lengthB) + 1;
    std::vector<std::vector<std::int32_t>> table(rows, std::vector<std::int32_t>(columns, 0));
    std::int32_t longest = 0;
    for (std::size_t i = 1; i < rows; ++i) {
        for (std::size_t j = 1; j < columns; ++j) {
            table[i][j] = a[i - 1] == b[j - 1] ? table[i - 1][j - 1] + 1 : 0;
            longest = std::max(longest, table[i][j]);
        }
    }
    return longest;
}

std::vector<std::int32_t> matchColumns(std::vector<std::string> appColumns,
                                       std::vector<std::string> fileColumns) {
    for (std::string &name : appColumns) {
        name = normalizeColumnName(name);
    }
    for (std::string &name : fileColumns) {
        name = normalizeColumnName(name);
    }
    std::map<std::int32_t, double> bestScoreByApp;
    std::map<std::int32_t, std::int32_t> bestFileByApp;
    for (std::size_t j = 0; j < fileColumns.size(); ++j) {
        double score = 0.0;
        std::int32_t vote = 0;
        for (std::size_t i = 0; i < appColumns.size(); ++i) {
            const double candidate = columnNameScore(appColumns[i], fileColumns[j]);
            if (candidate > score) {
                score = candidate;
                vote = static_cast<std::int32_t>(i);
            }
        }
        const auto kept = bestScoreByApp.find(vote);
        if (kept == bestScoreByApp.end() || score > kept->second) {
            bestScoreByApp[vote] = score;
            bestFileByApp[vote] = static_cast<std::int32_t>(j);
        }
    }
    std::vector<std::int32_t> proposal;
    for (std::size_t i = 0; i < appColumns.size(); ++i) {
        const auto app = static_cast<std::int32_t>(i);
        const auto kept = bestScoreByApp.find(app);
        proposal.push_back(kept != bestScoreByApp.end() && kept->second > 0.4 ? bestFileByApp[app]
                                                                              : -1);
    }
    return proposal;
}

} // namespace columnimport::reference
