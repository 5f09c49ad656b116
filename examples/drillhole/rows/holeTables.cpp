// SPDX-License-Identifier: MIT

#include "examples/drillhole/rows/holeTables.h"

#include <algorithm>

namespace drillhole {

const std::vector<Table> &holeTables() {
    static const std::vector<Table> tables = {
        {"collar",
         "Collars",
         {{"holename", "holename", Kind::text, true},
          {"easting", "easting", Kind::number, true},
          {"northing", "northing", Kind::number, true},
          {"elevation", "elevation", Kind::number, false},
          {"length", "length", Kind::number, false, 0}},
         true,
         false},
        {"survey",
         "Surveys",
         {{"holename", "holename", Kind::text, true},
          {"depth", "depth", Kind::number, true, 0},
          {"azimuth", "azimuth", Kind::number, true, 0, 360},
          {"dip", "dip", Kind::number, true, -90, 90}},
         false,
         false},
        {"assay",
         "Assays",
         {{"holename", "holename", Kind::text, true},
          {"fromdepth", "fromdepth", Kind::number, true, 0},
          {"todepth", "todepth", Kind::number, true},
          {"Au g/t", "au_gt", Kind::number, false, 0},
          {"Cu %", "cu_pct", Kind::number, false, 0, 100},
          {"Zn %", "zn_pct", Kind::number, false, 0, 100},
          {"duplicate", "duplicate", Kind::text, false},
          {"blank", "blank", Kind::text, false},
          {"standard", "standard", Kind::text, false}},
         false,
         true},
    };
    return tables;
}

const Table *findTable(const std::string &name) {
    const std::vector<Table> &tables = holeTables();
    const auto table = std::find_if(tables.begin(), tables.end(),
                                    [&name](const Table &each) { return each.name == name; });
    return table == tables.end() ? nullptr : &*table;
}

} // namespace drillhole
