// SPDX-License-Identifier: MIT

#include "examples/drillhole/rows/RowCheck.h"

#include "examples/drillhole/rows/Fault.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

#include <glib.h>

namespace drillhole {

namespace {

std::string quoted(std::string_view text) {
    return '"' + asUtf8(text) + '"';
}

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    return first == std::string_view::npos
               ? std::string_view()
               : text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::string takeValue(const Column &column, std::string_view text, Value &value) {
    value.isNull = text.empty();
    if (value.isNull) {
        return column.isRequired ? column.name + " is empty" : std::string();
    }
    if (column.kind == Kind::text) {
        value.text = asUtf8(text);
        return value.text.find('\0') == std::string::npos ? std::string()
                                                          : column.name + " holds a zero byte";
    }
    const std::optional<double> number = parseNumber(text);
    value.number = number.value_or(0);
    return number ? std::string() : column.name + ' ' + quoted(text) + " is no number";
}

} // namespace

RowCheck::RowCheck(const Table &table, RowLayout layout, std::unordered_set<std::string> holes)
    : m_table(table), m_layout(std::move(layout)), m_holes(std::move(holes)) {
    m_layout.positions.resize(table.columns.size());
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const std::optional<std::size_t> &position = m_layout.positions[i];
        if (table.columns[i].isRequired && !position) {
            throw Fault("No column was matched to " + table.columns[i].name +
                        ", and no row makes sense without it. Import again and drag one onto it.");
        }
        m_fieldsNeeded = std::max(m_fieldsNeeded, position ? *position + 1 : 0);
    }
    if (m_layout.mustBeWhole) {
        m_fieldsNeeded = m_layout.fieldCount;
    }
}

std::string RowCheck::check(const Row &row, std::vector<Value> &values) {
    std::string reason = checkLayout(row.fields.size());
    values.resize(m_table.columns.size());
    for (std::size_t i = 0; i < values.size() && reason.empty(); ++i) {
        const std::optional<std::size_t> &position = m_layout.positions[i];
        if (position) {
            reason = takeValue(m_table.columns[i], trimmed(row.fields[*position]), values[i]);
        }
    }
    if (!reason.empty()) {
        return reason;
    }
    if (m_table.hasIntervals && !(values[1].number < values[2].number)) {
        const auto field = [&](std::size_t i) {
            return std::string(trimmed(row.fields[*m_layout.positions[i]]));
        };
        return m_table.columns[1].name + ' ' + field(1) + " is not below " +
               m_table.columns[2].name + ' ' + field(2);
    }
    return checkHole(values.front().text);
}

std::string RowCheck::checkLayout(std::size_t count) const {
    if (count < m_fieldsNeeded) {
        return "too few fields: " + std::to_string(count) + " of " + std::to_string(m_fieldsNeeded);
    }
    if (count > m_layout.fieldCount) {
        return "too many fields: " + std::to_string(count) + " where a row has " +
               std::to_string(m_layout.fieldCount);
    }
    return {};
}

std::string RowCheck::checkHole(const std::string &hole) {
    if (m_table.namesHoles) {
        return m_holes.insert(hole).second ? std::string()
                                           : "there is a collar " + quoted(hole) + " already";
    }
    return m_holes.count(hole) > 0 ? std::string() : "no collar is called " + quoted(hole);
}

std::optional<double> parseNumber(std::string_view text) {
    if (text.size() > 1 && text.front() == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    double number = 0;
    const char *end = text.data() + text.size();
    const auto [stop, failure] = std::from_chars(text.data(), end, number);
    if (failure != std::errc() || stop != end || !std::isfinite(number)) {
        return std::nullopt;
    }
    return number;
}

std::string asUtf8(std::string_view bytes) {
    const auto length = static_cast<gssize>(bytes.size());
    if (g_utf8_validate(bytes.data(), length, nullptr) != FALSE) {
        return std::string(bytes);
    }
    gsize written = 0;
    char *text = g_convert(bytes.data(), length, "UTF-8", "ISO-8859-1", nullptr, &written, nullptr);
    std::string result(text, written);
    g_free(text);
    return result;
}

} // namespace drillhole
