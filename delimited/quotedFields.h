// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace columnimport {

/// For each field that splitLine cuts off `line`, in order: the number of the field that contains
/// it for readers that honour double quotes; -1 where such readers disagree.
///
/// For these readers a field that begins with a double quote ends at the next quote that is not
/// doubled, and delimiters in it are text; elsewhere a double quote is an ordinary byte. A run of
/// tabs is as many delimiters. They disagree after
/// - a delimiter in quotes that follow blanks, `a, "b,c"`,
/// - a delimiter behind a quote that is never closed, `a,"b,c`,
/// - a field with text after its closing quote, `"a"b,c`,
/// - delimiting blanks in a run or at the beginning of the line,
/// - a carriage return inside the line, which some take for its end.
///
///     quotedFields("\"From, m\",To", ',')  gives 0, 0, 1, of the columns From | m | To
///     quotedFields("a\t\tb", '\t')         gives 0, 2, of the columns a | b
std::vector<std::int32_t> quotedFields(const std::string &line, char delimiter);

} // namespace columnimport
