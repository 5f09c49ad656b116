// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace columnimport {

/// The number of the field, for a reader that honours double quotes, of each field that splitLine
/// cuts off `line`, in order; -1 where such readers disagree.
///
/// These readers take a field that begins with a double quote up to the next one that is not
/// doubled, and delimiters in it as text; elsewhere in a field a double quote is an ordinary byte.
/// They take a run of tabs for as many delimiters. They disagree after
/// - a delimiter between quotes that follow blanks, `a, "b,c"`,
/// - a delimiter between quotes of which the second one is missing, `a,"b,c`,
/// - a field with text behind its closing quote, `"a"b,c`,
/// - blanks that separate and stand in a run or at the line's beginning,
/// - a carriage return in the midst of the line, which some take for its end.
///
///     quotedFields("\"From, m\",To", ',')  gives 0, 0, 1, of the columns From | m | To
///     quotedFields("a\t\tb", '\t')         gives 0, 2, of the columns a | b
std::vector<std::int32_t> quotedFields(const std::string &line, char delimiter);

} // namespace columnimport
