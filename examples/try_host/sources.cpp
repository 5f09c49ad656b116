#include "examples/try_host/sources.h"

#include <algorithm>
#include <filesystem>

namespace {

const std::vector<std::string> collarColumns = {"holename", "easting", "northing", "elevation",
                                                "length"};
const std::vector<std::string> surveyColumns = {"holename", "depth", "azimuth", "dip"};
const std::vector<std::string> assayColumns = {
    "holename", "fromdepth", "todepth", "Au g/t", "Cu %", "Zn %", "duplicate", "blank", "standard"};
const std::vector<std::string> allColumns = {
    "holename",  "easting", "northing", "elevation", "length", "depth",     "azimuth", "dip",
    "fromdepth", "todepth", "Au g/t",   "Cu %",      "Zn %",   "duplicate", "blank",   "standard"};
const std::vector<std::string> tableColumns = {"PROJECT", "HOLE_ID",  "UTM_X", "UTM_Y",
                                               "ELEV_M",  "LENGTH_M", "AZ",    "DIP_DEG"};

Source sampleFile(const std::string &title, const std::vector<std::string> &appColumns,
                  const std::string &name, char delimiter, bool firstLineHoldsTitles) {
    return {title, appColumns, SAMPLE_FOLDER "/" + name, {}, delimiter, firstLineHoldsTitles};
}

std::string nameOf(const std::string &path) {
    return std::filesystem::path(path).filename().string();
}

} // namespace

std::vector<Source> sampleSources() {
    std::vector<std::string> holeColumns = collarColumns;
    holeColumns.insert(holeColumns.end(), {"azimuth", "dip"});
    return {
        sampleFile("Collars", collarColumns, "collars.csv", ',', true),
        sampleFile("Surveys, in French", surveyColumns, "surveys_fr.csv", ';', true),
        sampleFile("Surveys without titles", surveyColumns, "surveys_without_titles.csv", ',',
                   false),
        sampleFile("Assays", assayColumns, "assays.csv", ',', true),
        sampleFile("Assays with tabs", assayColumns, "assays_tab.txt", '\t', true),
        sampleFile("Assays, 300 columns", assayColumns, "assays_300.csv", ',', true),
        {"Holes in a database", holeColumns, "DRILL_HOLES", tableColumns},
    };
}

Source sourceOfFile(const std::string &path) {
    const std::vector<Source> samples = sampleSources();
    const auto sample = std::find_if(samples.begin(), samples.end(), [&path](const Source &each) {
        return nameOf(each.fileName) == nameOf(path);
    });
    Source source =
        sample != samples.end() ? *sample : Source{"File of your own", allColumns, {}, {}};
    source.fileName = path;
    return source;
}
