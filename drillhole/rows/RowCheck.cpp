// SPDX-License-Identifier: MIT

#include "drillhole/rows/RowCheck.h"

#include "drillhole/rows/Fault.h"
#include "drillhole/rows/text.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <boost/algorithm/string/case_conv.hpp>
#include <boost/algorithm/string/predicate.hpp>

namespace drillhole {

namespace {

constexpr double tolerance = 1e-6; // metres: what a change of units leaves of an equal depth
constexpr double noValues[] = {-999, -9999, -99999};
constexpr const char *taken[] = {"", "half of the limit taken", "the limit taken as negative",
                                 "left empty"};

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
                   RowQuestions questions)
    : m_table(table), m_layout(std::move(layout)), m_choices(std::move(choices)),
      m_marks(m_choices.decimalMark, m_layout.delimiter, table.columns.size()),
      m_fieldCount(m_layout.columns.size()), m_holes(std::move(holes)),
      m_questions(std::move(questions)) {
    m_layout.positions.resize(table.columns.size());
    m_layout.factors.resize(table.columns.size(), 1);
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
    for (const auto &[name, hole] : m_holes) {
        isFirstAt(hole.easting, hole.northing, name);
    }
}

void RowCheck::learn(const Row &row) {
    for (std::size_t i = 0; i < m_table.columns.size(); ++i) {
        const std::optional<std::size_t> &position = m_layout.positions[i];
        if (position && *position < row.fields.size() && m_table.columns[i].kind == Kind::number) {
            m_marks.learn(i, numberPart(row.fields[*position]));
        }
    }
}

std::string RowCheck::check(const Row &row, std::vector<Value> &values) {
    m_found.clear();
    std::string reason = row.refusal != nullptr ? row.refusal : checkLayout(row);
    values.resize(m_table.columns.size());
    for (std::size_t i = 0; i < values.size() && reason.empty(); ++i) {
        const std::optional<std::size_t> &position = m_layout.positions[i];
        if (position) {
            reason = takeValue(i, trimmed(row.fields[*position]), values[i]);
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
    const bool mayBeCut =
        m_layout.delimiter == ',' && count != m_fieldCount && mayBeCutInANumber(row);
    if (count < m_fieldsNeeded || (count < m_fieldCount && mayBeCut)) {
        return "too few fields: " + std::to_string(count) + " of " +
               std::to_string(count < m_fieldsNeeded ? m_fieldsNeeded : m_fieldCount) +
               (count < m_fieldsNeeded ? "" : ", and perhaps a decimal comma");
    }
    m_hadWhole.resize(std::max(m_hadWhole.size(), count));
    for (std::size_t i = 0; i < count && count == m_fieldCount; ++i) {
        m_hadWhole[i] = m_hadWhole[i] || isWhole(row.fields[i]);
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
    } else if (!onlyEmptyMore || mayBeCut) {
        return "too many fields: " + std::to_string(count) + " where a row has " +
               std::to_string(m_fieldCount);
    }
    return {};
}

/// Whether a number with a decimal comma may have been cut in two, and the row have its required
/// values all the same. Whole numbers are nothing new where full rows had them, but in a short row
/// they are no proof for a value.
bool RowCheck::mayBeCutInANumber(const Row &row) const {
    const std::vector<std::string_view> &fields = row.fields;
    for (std::size_t cut = 0; cut + 1 < fields.size(); ++cut) {
        bool isPlausible = isWhole(fields[cut]) && isWhole(fields[cut + 1]);
        bool isNew = cut >= m_hadWhole.size() || !m_hadWhole[cut] || fields.size() < m_fieldCount;
        for (std::size_t i = 0; i < m_table.columns.size() && isPlausible; ++i) {
            const std::size_t place = m_layout.positions[i].value_or(0);
            if (m_table.columns[i].isRequired && place == cut) {
                isNew = cut >= m_hadWhole.size() || !m_hadWhole[cut];
            } else if (m_table.columns[i].isRequired && place > cut) {
                isPlausible = place + 1 < fields.size() && !fields[place + 1].empty();
            }
        }
        if (isPlausible && isNew) {
            return true;
        }
    }
    return false;
}

std::string RowCheck::takeValue(std::size_t place, std::string_view text, Value &value) {
    const Column &column = m_table.columns[place];
    const bool isWord = place > 0 && isNoValue(place, text);
    value.isNull = text.empty() || isWord;
    if (isWord) {
        m_found.push_back(column.name + " has a word for no value, left empty");
    }
    if (value.isNull) {
        return column.isRequired ? column.name + " is empty" : std::string();
    }
    if (column.kind == Kind::number) {
        return takeNumber(place, text, value);
    }
    value.text = asUtf8(text);
    return value.text.find('\0') == std::string::npos ? std::string()
                                                      : column.name + " holds a zero byte";
}

std::string RowCheck::takeNumber(std::size_t place, std::string_view whole, Value &value) {
    const Column &column = m_table.columns[place];
    const std::string_view text = numberPart(whole);
    const BelowDetection choice = m_choices.belowDetection;
    const bool isBelow = text.size() > 1 && text.front() == '<' && !column.isRequired &&
                         choice != BelowDetection::refused;
    const std::optional<double> read =
        m_marks.numberIn(place, isBelow ? trimmed(text.substr(1)) : text);
    if (!read) {
        return column.name + ' ' + quoted(whole) +
               (DecimalMarks::mayHaveThousands(text) ? " may have a thousands separator or decimals"
                                                     : " is no number");
    }
    value.number = converted(*read, m_layout.factors[place]);
    if (text.find(',') != std::string_view::npos) {
        m_found.push_back(column.name + " has a decimal comma");
    }
    if (isBelow) {
        value.number *= choice == BelowDetection::half ? 0.5 : -1;
        value.isNull = choice == BelowDetection::empty;
        m_found.push_back(column.name + " is below detection, " + taken[static_cast<int>(choice)]);
    } else if (std::string oddity = oddityOf(column, value.number); !oddity.empty()) {
        m_found.push_back(std::move(oddity));
    }
    if (text.size() != whole.size()) {
        m_found.push_back(column.name + " has a degree sign, left out");
    }
    return {};
}

bool RowCheck::isNoValue(std::size_t column, std::string_view text) const {
    const auto &words = m_choices.noValue;
    const bool isNumber = !words.empty() && m_table.columns[column].kind == Kind::number;
    const double number = isNumber ? m_marks.numberIn(column, numberPart(text)).value_or(NAN) : NAN;
    return std::any_of(words.begin(), words.end(), [&](const std::string &word) {
        return boost::iequals(word, text, std::locale::classic()) || parseNumber(word) == number;
    });
}

std::string RowCheck::checkHole(const std::vector<Value> &values) {
    if (m_table.hasIntervals && !(values[1].number < values[2].number)) {
        return m_table.columns[1].name + ' ' + digitsOf(values[1].number) + " is not below " +
               m_table.columns[2].name + ' ' + digitsOf(values[2].number);
    }
    if (m_table.namesHoles) {
        return checkCollar(values);
    }
    const auto hole = m_holes.find(values.front().text);
    return hole == m_holes.end() ? "no collar is called " + quoted(values.front().text)
                                 : checkDepths(hole->second, values);
}

std::string RowCheck::checkCollar(const std::vector<Value> &values) {
    const std::string &name = values.front().text;
    if (!m_holes.try_emplace(name).second) {
        return "there is a collar " + quoted(name) + " already";
    }
    if (!isFirstAt(values[1].number, values[2].number, name)) {
        m_found.emplace_back("stands where one of the same name stands, but for capitals");
    }
    return {};
}

bool RowCheck::isFirstAt(double easting, double northing, const std::string &name) {
    return m_places.emplace(easting, northing, boost::to_lower_copy(name, std::locale::classic()))
        .second;
}

std::string RowCheck::checkDepths(Hole &hole, const std::vector<Value> &values) {
    const auto depths = depthsOf(m_table, values);
    const double margin = std::min(tolerance, (depths.upper() - depths.lower()) / 3);
    const auto within =
        Depths::interval_type::open(depths.lower() + margin, depths.upper() - margin);
    // Of rows that follow one another down the hole nothing more is to be kept than the last.
    if (!m_hasDepths && within.lower() < hole.deepest) {
        m_questions.readDepths(m_holes);
        m_hasDepths = true;
    }
    if (m_hasDepths && boost::icl::intersects(hole.depths, within)) {
        if (m_questions.isThere()) {
            return "there already";
        }
        m_found.emplace_back(m_table.hasIntervals ? "overlaps another interval of its hole"
                                                  : "is not the only survey at its depth");
    }
    if ((m_table.hasIntervals ? depths.upper() : depths.lower()) > hole.length + tolerance) {
        m_found.emplace_back("goes deeper than its hole is long");
    }
    if (!m_table.hasIntervals) {
        const double dip = values.back().number;
        if (dip * std::exchange(hole.lastDip, dip) < 0) {
            m_found.emplace_back("dip has another sign than before in its hole");
        }
    }
    hole.deepest = std::max(hole.deepest, depths.upper());
    if (m_hasDepths) {
        hole.depths += depths;
    }
    return {};
}

} // namespace drillhole
