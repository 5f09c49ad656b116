// SPDX-License-Identifier: MIT

#include "drillhole/rows/holeTables.h"

#include "drillhole/rows/Fault.h"
#include "drillhole/rows/text.h"

#include <algorithm>
#include <cmath>
#include <regex>
#include <sstream>

#include <boost/algorithm/string/case_conv.hpp>
#include <boost/algorithm/string/erase.hpp>
#include <boost/algorithm/string/replace.hpp>

namespace drillhole {

extern const char *const usualWords; // rows/words.txt

namespace {

constexpr double deepest = 15'000; // metres: no hole is deeper

std::vector<Table> tablesWithoutWords() {
    const Column hole = {"holename", Kind::text, true};
    const Column from = {"fromdepth", Kind::number, true, 0, deepest};
    const Column to = {"todepth", Kind::number, true, 0, deepest};
    const std::vector<Column> collar = {hole,
                                        {"easting", Kind::number, true},
                                        {"northing", Kind::number, true},
                                        {"elevation", Kind::number, false},
                                        {"length", Kind::number, false, 0, deepest}};
    const std::vector<Column> survey = {hole,
                                        {"depth", Kind::number, true, 0, deepest},
                                        {"azimuth", Kind::number, true, 0, 360},
                                        {"dip", Kind::number, true, -90, 90}};
    const std::vector<Column> lithology = {
        hole, from, to, {"code", Kind::text, true}, {"description", Kind::text, false}};
    const std::vector<Column> assay = {hole,
                                       from,
                                       to,
                                       {"duplicate", Kind::text, false},
                                       {"blank", Kind::text, false},
                                       {"standard", Kind::text, false}};
    return {{"collar", "Collars", "collar", true, false, collar},
            {"survey", "Surveys", "survey", false, false, survey},
            {"assay", "Assays", "assay", false, true, assay},
            {"lithology", "Lithology", "interval of lithology", false, true, lithology}};
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

/// Gives the words to every column of that name.
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
        areGrades = areGrades || line == "[grades]";
        if (trimmed(line).empty() || trimmed(line).front() == '#' || line == "[grades]") {
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
        if (!areGrades || !unit || name.front() < 'A' || name.front() > 'Z') {
            throw Fault("The table of words has a line that makes no sense: " + quoted(line) +
                        ". Write a column's name or, below [grades], an element and its unit, then "
                        "= and the words, as in Sb ppm = Sb, antimony.");
        }
        // In front of the last three, which are no grades.
        assays.insert(assays.end() - 3,
                      {name, Kind::number, false, 0, 1'000'000 / *unit, words, true});
    }
}

} // namespace

std::string Column::sqlName() const {
    std::string text = boost::to_lower_copy(name, std::locale::classic());
    boost::replace_all(text, "%", "pct");
    boost::erase_all(text, "/");
    return std::regex_replace(text, std::regex("[^a-z0-9]+"), "_");
}

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
