// SPDX-License-Identifier: MIT

#include "drillhole/rows/holeTables.h"

#include <algorithm>

namespace drillhole {

namespace {

const Kind text = Kind::text;
const Kind number = Kind::number;
const Column hole = {"holename", "holename", text, true, {"hole_id", "drillhole"}};

const std::vector<Column> collar = {
    hole,
    {"easting", "easting", number, true, {"X_MGA", "X_UTM", "MGA_E"}},
    {"northing", "northing", number, true, {"Y_MGA", "Y_UTM", "MGA_N"}},
    {"elevation", "elevation", number, false, {"RL", "Z_MGA", "Z_RL"}},
    {"length", "length", number, false, {"EOH", "MaxDepth", "TOTAL_DEPTH", "EOH_Depth"}, 0}};

const std::vector<Column> survey = {hole,
                                    {"depth", "depth", number, true, {"At", "Survey_Depth"}, 0},
                                    {"azimuth", "azimuth", number, true, {}, 0, 360},
                                    {"dip", "dip", number, true, {}, -90, 90}};

const std::vector<Column> assay = {
    hole,
    {"fromdepth", "fromdepth", number, true, {"From (m)", "from_m", "SAMPFROM", "Depth_From"}, 0},
    {"todepth", "todepth", number, true, {"To (m)", "to_m", "SAMPTO", "Depth_To"}},
    {"Au g/t", "au_gt", number, false, {"Au", "Au_ppm", "Au_gpt"}, 0},
    {"Cu %", "cu_pct", number, false, {"Cu", "Cu_pct"}, 0, 100},
    {"Zn %", "zn_pct", number, false, {"Zn", "Zn_pct"}, 0, 100},
    {"duplicate", "duplicate", text, false, {}},
    {"blank", "blank", text, false, {}},
    {"standard", "standard", text, false, {}}};

} // namespace

const std::vector<Table> &holeTables() {
    static const std::vector<Table> tables = {{"collar", "Collars", collar, true, false},
                                              {"survey", "Surveys", survey, false, false},
                                              {"assay", "Assays", assay, false, true}};
    return tables;
}

const Table *findTable(const std::string &name) {
    const std::vector<Table> &tables = holeTables();
    const auto table = std::find_if(tables.begin(), tables.end(),
                                    [&name](const Table &each) { return each.name == name; });
    return table == tables.end() ? nullptr : &*table;
}

} // namespace drillhole
