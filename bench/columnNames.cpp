// SPDX-License-Identifier: MIT

#include "bench/columnNames.h"

#include <array>
#include <cctype>
#include <random>
#include <set>
#include <string_view>

namespace columnimport::bench {

namespace {

using Words = std::vector<std::string_view>;

const Words fields = {
    "hole id",   "bhid",       "holename", "easting", "northing",  "elevation", "x",
    "y",         "z",          "utm x",    "utm y",   "azimuth",   "az",        "dip",
    "depth",     "from",       "to",       "length",  "max depth", "collar x",  "collar y",
    "sample id", "sample no",  "batch",    "lab",     "date",      "geologist", "litho",
    "rock",      "alteration", "density",  "sg",      "recovery",  "rqd",       "weight",
    "duplicate", "blank",      "standard", "xc",      "yc",        "zc",        "xinc",
    "yinc",      "zinc",       "domain",   "class",   "zone",      "level",     "bench",
    "pit",       "rl",         "grid",     "survey",  "method",    "moisture",  "weathering",
    "oxide",     "vein",       "bearing",  "brg",     "project",   "site",      "rig",
    "core size"};
const Words elements = {"au", "ag", "cu", "pb", "zn", "fe", "ni", "co", "mo", "as", "sb",
                        "bi", "sn", "w",  "u",  "pt", "pd", "mn", "mg", "ca", "al", "si",
                        "k",  "na", "ti", "v",  "cr", "ba", "cd", "hg", "li", "s"};
const Words methods = {"", "", "", "fa", "icp", "xrf", "aas", "ms"};
const Words units = {"g/t", "%", "ppm", "ppb", "pct", "gt", ""};
const Words remarks = {"", "", "", "", "1", "2", "avg", "cap", "best", "m", "raw", "qc"};

/// The standard defines the generator's numbers exactly, but not those of its distributions.
class Dice {
public:
    explicit Dice(unsigned seed) : m_random(seed) {}
    std::size_t below(std::size_t end) { return m_random() % end; }
    std::string_view oneOf(const Words &words) { return words[below(words.size())]; }

private:
    std::mt19937 m_random;
};

void append(std::string &name, std::string_view word, char separator) {
    if (word.empty()) {
        return;
    }
    if (!name.empty() && separator != '\0') {
        name += separator;
    }
    name += word;
}

std::string oneName(Dice &dice) {
    const char separator = std::array<char, 4>{' ', '_', '-', '\0'}[dice.below(4)];
    std::string name;
    if (dice.below(2) == 0) {
        append(name, dice.oneOf(elements), separator);
        append(name, dice.oneOf(methods), separator);
        append(name, dice.oneOf(units), separator);
    } else {
        append(name, dice.oneOf(fields), separator);
    }
    append(name, dice.oneOf(remarks), separator);
    if (dice.below(4) == 0) {
        append(name, std::to_string(dice.below(100)), separator);
    }
    const std::size_t letterCase = dice.below(3);
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (letterCase == 0 || (letterCase == 1 && i == 0)) {
            name[i] = static_cast<char>(std::toupper(static_cast<unsigned char>(name[i])));
        }
    }
    return name;
}

} // namespace

std::vector<std::string> columnNames(std::size_t count, unsigned seed) {
    Dice dice(seed);
    std::set<std::string> known;
    std::vector<std::string> names;
    names.reserve(count);
    while (names.size() < count) {
        std::string name = oneName(dice);
        // The largest lists need more names than there are; a number makes another one.
        while (!known.insert(name).second) {
            name += std::to_string(dice.below(10));
        }
        names.push_back(std::move(name));
    }
    return names;
}

std::string endlessName(std::size_t length) {
    Dice dice(1);
    std::string name;
    name.reserve(length + 64);
    while (name.size() < length) {
        append(name, oneName(dice), '\t');
    }
    name.resize(length);
    return name;
}

std::vector<std::string> longNames(std::size_t count, std::size_t length) {
    const std::string endless = endlessName(count * length);
    std::vector<std::string> names;
    names.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        names.push_back(endless.substr(i * length, length));
    }
    return names;
}

} // namespace columnimport::bench
