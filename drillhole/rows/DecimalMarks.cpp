// SPDX-License-Identifier: MIT

#include "drillhole/rows/DecimalMarks.h"

#include "drillhole/rows/text.h"

#include <algorithm>

namespace drillhole {

namespace {

constexpr unsigned int point = 1;
constexpr unsigned int comma = 2;
constexpr unsigned int both = point | comma;

/// The marks that a text holds.
unsigned int marksIn(std::string_view text) {
    return (text.find('.') == std::string_view::npos ? 0 : point) |
           (text.find(',') == std::string_view::npos ? 0 : comma);
}

std::optional<double> parse(std::string text) {
    std::replace(text.begin(), text.end(), ',', '.');
    return parseNumber(text);
}

} // namespace

DecimalMarks::DecimalMarks(DecimalMark choice, char delimiter, std::size_t columnCount)
    : m_allowed(choice == DecimalMark::point || delimiter == ',' || delimiter == '\0' ? point
                : choice == DecimalMark::comma                                        ? comma
                                                                                      : 0),
      m_seen(columnCount) {}

// 1,234 but not 0,234 or 1234,567.
bool DecimalMarks::mayHaveThousands(std::string_view text) {
    text.remove_prefix(!text.empty() && (text.front() == '-' || text.front() == '+') ? 1 : 0);
    const std::size_t mark = text.find_first_of(".,");
    return mark >= 1 && mark <= 3 && mark + 4 == text.size() && text.front() != '0' &&
           isWhole(text.substr(0, mark)) && isWhole(text.substr(mark + 1));
}

void DecimalMarks::learn(std::size_t column, std::string_view text) {
    const unsigned int marks = marksIn(text);
    if (marks != 0 && marks != both && !mayHaveThousands(text) && parse(std::string(text))) {
        m_seen[column] |= marks;
        m_seenAnywhere |= marks;
    }
}

std::optional<double> DecimalMarks::numberIn(std::size_t column, std::string_view text) const {
    const unsigned int marks = marksIn(text);
    const unsigned int seen = m_seen[column] != 0 ? m_seen[column] : m_seenAnywhere;
    const bool isMark =
        m_allowed != 0 ? (marks & ~m_allowed) == 0 : marks == seen || !mayHaveThousands(text);
    return marks == 0 || (marks != both && isMark) ? parse(std::string(text)) : std::nullopt;
}

} // namespace drillhole
