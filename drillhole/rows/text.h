// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace drillhole {

/// The text in UTF-8: what is no UTF-8 is taken for Windows-1252, and what is not that either for
/// Latin-1.
std::string asUtf8(std::string_view bytes);

/// At most so many characters of the text, as `asUtf8` has it.
std::string shortened(std::string_view bytes, long length);

/// The head of a value, between quotes.
std::string quoted(std::string_view text);

/// The text without blanks around it, also those that do not break a line.
std::string_view trimmed(std::string_view text);

/// The words between commas.
std::vector<std::string> listOf(const std::string &text);

/// The text between quotes, with the escaping character before each quote and itself within it.
std::string inQuotes(std::string_view text, char quote, char escape);

/// The text without a degree sign behind it, and without blanks in any encoding.
std::string_view numberPart(std::string_view text);

/// Whether the text is a whole number without a sign.
bool isWhole(std::string_view text);

/// The number that the whole text is, with a decimal point, or nothing.
std::optional<double> parseNumber(std::string_view text);

/// The number in the fewest digits that give it back.
std::string digitsOf(double number);

/// "1,234".
std::string grouped(std::size_t count);

/// "1 row", "1,234 rows".
std::string countOf(std::size_t count, const std::string &noun);

} // namespace drillhole
