// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace columnimport {

/// The bytes that are trimmed off lines and fields: blank, tab, carriage return, line feed.
inline constexpr const char *blankChars = " \t\r\n";

/// `text` without `blankChars` at either end.
std::string_view trimmed(std::string_view text);

/// `text` without the run of bytes of `chars` at its right end.
std::string trimRight(const std::string &text, const std::string &chars);

/// `text` without the run of bytes of `chars` at its left end.
std::string trimLeft(const std::string &text, const std::string &chars);

/// Cuts the first field off `rest` and returns it, trimmed of `blankChars`. `rest` becomes what
/// follows the field's delimiter, trimmed too, or empty where the delimiter does not occur.
/// `delimiter` must not be empty.
///
///     rest = "a , b,c";  popField(rest, ",") == "a";  rest == "b,c"
std::string popField(std::string &rest, const std::string &delimiter);

/// Replaces `fields` by the fields of `line`, trimmed, in order; a blank line has none. Bytes are
/// compared as they are: no quoting, no escapes, no encoding. `delimiter` must not be empty.
///
/// Runs of blanks or tabs collapse as delimiters, since the rest is trimmed after each cut; runs of
/// other delimiters do not.
///
///     splitLine("a,,b,", fields, ",")  gives "a", "", "b", ""
///     splitLine("a  b ", fields, " ")  gives "a", "b"
void splitLine(std::string line, std::vector<std::string> &fields, std::string delimiter);

} // namespace columnimport
