// SPDX-License-Identifier: MIT

#include "matching/synonymTable.h"

#include <algorithm>

namespace columnimport {

SynonymTable synonymTable() {
    const std::vector<std::string> eastings = {"x",     "coordx", "xutm",    "utmx",
                                               "utm_x", "x_utm",  "xcollar", "xc"};
    const std::vector<std::string> northings = {"y",     "coordy", "yutm",    "utmy",
                                                "utm_y", "y_utm",  "ycollar", "yc"};
    const std::vector<std::string> elevations = {"z",     "coordz",  "zutm", "utmz",
                                                 "utm_z", "zcollar", "zc"};
    return {
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
}

bool areSynonyms(std::string a, std::string b) {
    return areSynonyms(synonymTable(), a, b);
}

bool areSynonyms(const SynonymTable &table, const std::string &a, const std::string &b) {
    const auto lists = [&table](const std::string &head, const std::string &word) {
        const auto row = table.find(head);
        return row != table.end() &&
               std::find(row->second.begin(), row->second.end(), word) != row->second.end();
    };
    return lists(a, b) || lists(b, a);
}

} // namespace columnimport
