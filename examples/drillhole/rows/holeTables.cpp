// SPDX-License-Identifier: MIT

#include "examples/drillhole/rows/holeTables.h"

#include <algorithm>

namespace drillhole {

const std::vector<Table> &holeTables() {
    static const std::vector<Table> tables = {
        {"collar",
         "Collars",
         {{"holename", "holename", Kind::text, true, {"hole_id", "drillhole"}},
          {"easting", "easting", Kind::number, true, {"X_MGA", "X_UTM", "MGA_E"}},
          {"northing", "northing", Kind::number, true, {"Y_MGA", "Y_UTM", "MGA_N"}},
          {"elevation", "elevation", Kind::number, false, {"RL", "Z_MGA", "Z_RL"}},
          {"length",
           "length",
           Kind::number,
           false,
           {"EOH", "MaxDepth", "TOTAL_DEPTH", "EOH_Depth"},
           0}},
         true,
         false},
        {"survey",
         "Surveys",
         {{"holename", "holename", Kind::text, true, {"hole_id", "drillhole"}},
          {"depth", "depth", Kind::number, true, {"At", "Survey_Depth"}, 0},
          {"azimuth", "azimuth", Kind::number, true, {}, 0, 360},
          {"dip", "dip", Kind::number, true, {}, -90, 90}},
         false,
         false},
        {"assay",
         "Assays",
         {{"holename", "holename", Kind::text, true, {"hole_id", "drillhole"}},
          {"fromdepth",
           "fromdepth",
           Kind::number,
           true,
           {"From (m)", "from_m", "SAMPFROM", "Depth_From"},
           0},
          {"todepth", "todepth", Kind::number, true, {"To (m)", "to_m", "SAMPTO", "Depth_To"}},
          {"Au g/t", "au_gt", Kind::number, false, {"Au", "Au_ppm", "Au_gpt"}, 0},
          {"Cu %", "cu_pct", Kind::number, false, {"Cu", "Cu_pct"}, 0, 100},
          {"Zn %", "zn_pct", Kind::number, false, {"Zn", "Zn_pct"}, 0, 100},
          {"duplicate", "duplicate", Kind::text, false, {}},
          {"blank", "blank", Kind::text, false, {}},
          {"standard", "standard", Kind::text, false, {}}},
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
