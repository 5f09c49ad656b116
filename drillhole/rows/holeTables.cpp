// SPDX-License-Identifier: MIT

#include "drillhole/rows/holeTables.h"

#include "drillhole/rows/Fault.h"
#include "drillhole/rows/text.h"

#include <algorithm>
#include <cmath>
#include <regex>
#include <sstream>

#include <boost/algorithm/string/case_conv.hpp>
#include <boost/algorithm/string/replace.hpp>

namespace drillhole {

extern const char *const usualWords; // rows/words.txt

namespace {

constexpr double deepest = 15'000; // metres: no hole is deeper

std::vector<Table> tablesWithoutWords() {
    const Kind text = Kind::text;
    const Kind number = Kind::number;
    const Column hole = {"holename", "holename", text, true};
    const Column from = {"fromdepth", "fromdepth", number, true, 0, deepest};
    const Column to = {"todepth", "todepth", number, true, 0, deepest};
    return {{"collar",
             "Collars",
             "collar",
             true,
             false,
             {hole,
              {"easting", "easting", number, true},
              {"northing", "northing", number, true},
              {"elevation", "elevation", number, false},
              {"length", "length", number, false, 0, deepest}}},
            {"survey",
             "Surveys",
             "survey",
             false,
             false,
             {hole,
              {"depth", "depth", number, true, 0, deepest},
              {"azimuth", "azimuth", number, true, 0, 360},
              {"dip", "dip", number, true, -90, 90}}},
            {"assay",
             "Assays",
             "assay",
             false,
             true,
             {hole,
              from,
              to,
              {"duplicate", "duplicate", text, false},
              {"blank", "blank", text, false},
              {"standard", "standard", text, false}}},
            {"lithology",
             "Lithology",
             "interval of lithology",
             false,
             true,
             {hole,
              from,
              to,
              {"code", "code", text, true},
              {"description", "description", text, false}}}};
}

/// "Cu %" is cu_pct in the database.
std::string sqlNameOf(std::string grade) {
    boost::replace_all(grade, "%", "pct");
    boost::replace_all(grade, "/", "");
    boost::to_lower(grade, std::locale::classic());
    return std::regex_replace(grade, std::regex("[^a-z0-9]+"), "_");
}

/// Parts per million in the unit that a name holds, or nothing.
std::optional<double> partsPerMillion(const std::string &name) {
    static const std::regex unit(R"re((%|pct|perc)|(ppb)|(ppm|g[/_ ]?p?t(?![a-z])))re",
                                 std::regex::icase);
    std::smatch found;
    if (!std::regex_search(name, found, unit)) {
        return std::nullopt;
    }
    return found[1].matched ? 10'000 : found[2].matched ? 0.001 : 1;
}

bool addWords(std::vector<Table> &tables, const std::string &name,
              const std::vector<std::string> &words) {
    bool isKnown = false;
    for (Table &table : tables) {
        for (Column &column : table.columns) {
            if (column.name == name) {
                column.words.insert(column.words.end(), words.begin(), words.end());
                isKnown = true;
            }
        }
    }
    return isKnown;
}

void addAll(std::vector<Table> &tables, const std::string &text) {
    std::vector<Column> &assays = tables[2].columns;
    std::istringstream lines(text);
    bool areGrades = false;
    for (std::string line; std::getline(lines, line);) {
        if (trimmed(line).empty() || trimmed(line).front() == '#' || line == "[grades]") {
            areGrades = areGrades || line == "[grades]";
            continue;
        }
        const std::size_t equals = std::min(line.find('='), line.size());
        const std::string name(trimmed(line.substr(0, equals)));
        const std::vector<std::string> words =
            listOf(line.substr(std::min(equals + 1, line.size())));
        if (addWords(tables, name, words)) {
            continue;
        }
        const std::optional<double> unit = partsPerMillion(name);
        if (!areGrades || !unit || !std::regex_match(name, std::regex("[A-Z][A-Za-z0-9 ]*.*"))) {
            throw Fault("The table of words has a line that makes no sense: " + quoted(line) +
                        ". Write a column's name or, below [grades], an element and its unit, then "
                        "= and the words, as in Sb ppm = Sb, antimony.");
        }
        const auto behindGrades =
            std::find_if(assays.begin(), assays.end(),
                         [](const Column &each) { return each.name == "duplicate"; });
        assays.insert(behindGrades, {name, sqlNameOf(name), Kind::number, false, 0,
                                     1'000'000 / *unit, words, true});
    }
}

} // namespace

const std::vector<Table> &holeTables(const std::string &moreWords) {
    static const std::vector<Table> tables = [&] {
        std::vector<Table> made = tablesWithoutWords();
        addAll(made, usualWords);
        addAll(made, moreWords);
        return made;
    }();
    return tables;
}

const Table *findTable(const std::string &name) {
    const std::vector<Table> &tables = holeTables();
    const auto table = std::find_if(tables.begin(), tables.end(),
                                    [&name](const Table &each) { return each.name == name; });
    return table == tables.end() ? nullptr : &*table;
}

std::optional<double> unitFactor(const std::string &title, const std::string &grade) {
    const std::optional<double> from = partsPerMillion(title);
    const std::optional<double> to = partsPerMillion(grade);
    return from && to ? std::optional(*from / *to) : std::nullopt;
}

double converted(double number, double factor) {
    // A division by a power of ten is exact where a product with its fraction is not.
    return factor < 1 ? number / std::round(1 / factor) : number * factor;
}

std::string conversionBy(double factor) {
    const bool divides = factor < 1;
    return (divides ? "divided by " : "multiplied with ") +
           grouped(static_cast<std::size_t>(std::lround(divides ? 1 / factor : factor)));
}

} // namespace drillhole
