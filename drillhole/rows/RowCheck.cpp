// SPDX-License-Identifier: MIT

#include "drillhole/rows/RowCheck.h"

#include "drillhole/rows/Fault.h"
#include "drillhole/rows/text.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <boost/algorithm/string/predicate.hpp>

namespace drillhole {

namespace {

constexpr double tolerance = 1e-6; // metres: what a change of units leaves of an equal depth
constexpr double noValues[] = {-999, -9999, -99999};
constexpr const char *taken[] = {"", "half of the limit taken", "the limit taken as negative",
                                 "left empty"};

bool isWhole(std::string_view text) {
    return !text.empty() && text.find_first_not_of("+-0123456789") == std::string_view::npos;
}

/// Whether the row may have been cut within a number with a decimal comma.
bool mayBeCutInANumber(const Row &row) {
    return std::adjacent_find(row.fields.begin(), row.fields.end(), [](auto left, auto right) {
               return isWhole(left) && isWhole(right);
           }) != row.fields.end();
}

/// What is odd about a number, or nothing.
std::string oddityOf(const Column &column, double number) {
    if (std::count(std::begin(noValues), std::end(noValues), number) > 0) {
        return column.name + " is " + digitsOf(number) + ", perhaps a word for no value";
    }
    if (number >= column.least && number <= column.greatest) {
        return {};
    }
    return column.name + (std::isinf(column.greatest) ? " is below " + digitsOf(column.least)
                                                      : " is not from " + digitsOf(column.least) +
                                                            " to " + digitsOf(column.greatest));
}

} // namespace

Depths::interval_type depthsOf(const Table &table, const std::vector<Value> &values) {
    const double from = values[1].number;
    const double to = table.hasIntervals ? values[2].number : from + 3 * tolerance;
    return Depths::interval_type::right_open(from, to);
}

RowCheck::RowCheck(const Table &table, RowLayout layout, ValueChoices choices, Holes holes,
                   std::function<bool()> isThere)
    : m_table(table), m_layout(std::move(layout)), m_choices(std::move(choices)),
      m_fieldCount(m_layout.columns.size()), m_holes(std::move(holes)), m_lastHole(m_holes.end()),
      m_isThere(std::move(isThere)) {
    m_layout.positions.resize(table.columns.size());
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const std::optional<std::size_t> &position = m_layout.positions[i];
        if (table.columns[i].isRequired && !position) {
            throw Fault("No column was matched to " + table.columns[i].name +
                        ", and no row makes sense without it. Import again and drag one onto it.");
        }
        m_fieldsNeeded = std::max(m_fieldsNeeded, position ? *position + 1 : 0);
    }
    // A field left out between blanks moves those behind it.
    m_fieldsNeeded = m_layout.delimiter == ' ' ? m_fieldCount : m_fieldsNeeded;
}

std::string RowCheck::check(const Row &row, std::vector<Value> &values) {
    m_found.clear();
    std::string reason = row.refusal != nullptr ? row.refusal : checkLayout(row);
    values.resize(m_table.columns.size());
    for (std::size_t i = 0; i < values.size() && reason.empty(); ++i) {
        const std::optional<std::size_t> &position = m_layout.positions[i];
        if (position) {
            reason = takeValue(m_table.columns[i], trimmed(row.fields[*position]), values[i]);
        }
    }
    if (reason.empty()) {
        reason = checkHole(values);
    }
    for (std::size_t i = 0; i < m_found.size() && reason.empty(); ++i) {
        m_remarks.add(m_found[i], row.firstLine);
    }
    return reason;
}

std::string RowCheck::checkLayout(const Row &row) {
    const std::size_t count = row.fields.size();
    const bool isFirst = !std::exchange(m_hasRows, true);
    if (count < m_fieldsNeeded) {
        return "too few fields: " + std::to_string(count) + " of " + std::to_string(m_fieldsNeeded);
    }
    if (count <= m_fieldCount) {
        return {};
    }
    // Delimiters without a value at the end of a row are what a spreadsheet leaves there.
    const bool onlyEmptyMore =
        std::all_of(row.fields.begin() + static_cast<std::ptrdiff_t>(m_fieldCount),
                    row.fields.end(), [](std::string_view field) { return field.empty(); });
    if (onlyEmptyMore && isFirst) {
        m_fieldCount = count;
    } else if (!onlyEmptyMore || (m_layout.delimiter == ',' && mayBeCutInANumber(row))) {
        return "too many fields: " + std::to_string(count) + " where a row has " +
               std::to_string(m_fieldCount);
    }
    return {};
}

std::string RowCheck::takeValue(const Column &column, std::string_view text, Value &value) {
    const bool isNumber = column.kind == Kind::number;
    std::optional<double> number = isNumber ? numberIn(text) : std::nullopt;
    const bool isWord = &column != &m_table.columns.front() && isNoValue(text, number);
    value.isNull = text.empty() || isWord;
    if (isWord) {
        m_found.push_back(column.name + " has a word for no value, left empty");
    }
    if (value.isNull) {
        return column.isRequired ? column.name + " is empty" : std::string();
    }
    if (!isNumber) {
        value.text = asUtf8(text);
        return value.text.find('\0') == std::string::npos ? std::string()
                                                          : column.name + " holds a zero byte";
    }
    const BelowDetection choice = m_choices.belowDetection;
    if (!number && text.front() == '<' && choice != BelowDetection::refused && !column.isRequired &&
        (number = numberIn(trimmed(text.substr(1))))) {
        number = choice == BelowDetection::half ? *number / 2 : -*number;
        value.isNull = choice == BelowDetection::empty;
        m_found.push_back(column.name + " is below detection, " + taken[static_cast<int>(choice)]);
    } else if (number) {
        std::string oddity = oddityOf(column, *number);
        if (!oddity.empty()) {
            m_found.push_back(std::move(oddity));
        }
        if (text.find(',') != std::string_view::npos) {
            m_found.push_back(column.name + " has a decimal comma");
        }
    }
    value.number = number.value_or(0);
    return number ? std::string() : column.name + ' ' + quoted(text) + " is no number";
}

bool RowCheck::isNoValue(std::string_view text, std::optional<double> number) const {
    const auto &words = m_choices.noValue;
    return std::any_of(words.begin(), words.end(), [&](const std::string &word) {
        return boost::iequals(word, text, std::locale::classic()) ||
               (number && parseNumber(word) == number);
    });
}

std::optional<double> RowCheck::numberIn(std::string_view text) const {
    const std::size_t comma = text.find(',');
    if (comma == std::string_view::npos || m_layout.delimiter != ';' ||
        !m_choices.hasDecimalCommas || text.find('.') != std::string_view::npos) {
        return parseNumber(text);
    }
    std::string withPoint(text);
    withPoint[comma] = '.';
    return parseNumber(withPoint);
}

std::string RowCheck::checkHole(const std::vector<Value> &values) {
    if (m_table.hasIntervals && !(values[1].number < values[2].number)) {
        return m_table.columns[1].name + ' ' + digitsOf(values[1].number) + " is not below " +
               m_table.columns[2].name + ' ' + digitsOf(values[2].number);
    }
    const std::string &name = values.front().text;
    if (m_table.namesHoles) {
        return m_holes.try_emplace(name).second ? std::string()
                                                : "there is a collar " + quoted(name) + " already";
    }
    if (m_lastHole == m_holes.end() || m_lastHole->first != name) {
        m_lastHole = m_holes.find(name);
    }
    if (m_lastHole == m_holes.end()) {
        return "no collar is called " + quoted(name);
    }
    Hole &hole = m_lastHole->second;
    const auto depths = depthsOf(m_table, values);
    const double margin = std::min(tolerance, (depths.upper() - depths.lower()) / 3);
    const auto within =
        Depths::interval_type::open(depths.lower() + margin, depths.upper() - margin);
    if (boost::icl::intersects(hole.depths, within)) {
        if (m_isThere()) {
            return "there already";
        }
        m_found.emplace_back(m_table.hasIntervals ? "overlaps another interval of its hole"
                                                  : "is not the only survey at its depth");
    }
    if ((m_table.hasIntervals ? depths.upper() : depths.lower()) > hole.length + tolerance) {
        m_found.emplace_back("goes deeper than its hole is long");
    }
    hole.depths += depths;
    return {};
}

} // namespace drillhole
