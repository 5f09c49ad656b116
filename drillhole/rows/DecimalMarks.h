// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace drillhole {

/// What stands in front of the decimals.
enum class DecimalMark { asShown, point, comma };

/// Tells decimal marks from thousands separators. A group of three digits, as in 1,234, could be
/// behind either; what the other numbers of its column show, or else all of them, decides.
class DecimalMarks {
public:
    /// @param delimiter  where a comma parts the fields, or in a table, only a point is a mark
    DecimalMarks(DecimalMark choice, char delimiter, std::size_t columnCount);

    /// Whether the numbers of the whole source are to be learned from before the first is read.
    bool mustLearn() const { return m_allowed == 0; }
    void learn(std::size_t column, std::string_view text);

    /// Whether a text is a number that may have a thousands separator.
    static bool mayHaveThousands(std::string_view text);

    /// The number, or nothing if the text is none or could be two.
    std::optional<double> numberIn(std::size_t column, std::string_view text) const;

private:
    unsigned int m_allowed;           ///< marks, as they are found in a text; 0 for what is shown
    std::vector<unsigned int> m_seen; ///< in each column, where no doubt is
    unsigned int m_seenAnywhere = 0;
};

} // namespace drillhole
