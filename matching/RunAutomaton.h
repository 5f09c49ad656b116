#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "matching/nameSymbols.h"

namespace columnimport {

/// Measures the longest run that one text has in common with each of a group of names, in one pass
/// over the text however many names there are.
///
/// It is the suffix automaton of the group. A state stands for the runs that end at the same
/// places of the names, its link for the longest run that is an end of these and ends at more
/// places. Reading a text keeps the longest end of what was read that occurs in the names, and a
/// state remembers the longest run with which it was entered.
///
/// The group's bytes cost 600 bytes of memory each; a text costs one table look-up for each of its
/// bytes and a visit to each state.
class RunAutomaton {
public:
    /// Normalised names, which must outlive the automaton.
    explicit RunAutomaton(std::vector<std::string_view> names);

    /// The longest run that `text`, a normalised name, has in common with each of the names, in
    /// their order.
    std::vector<std::size_t> longestRuns(std::string_view text) const;

private:
    using State = std::uint32_t;

    /// Where a byte leads. Where no run of the state goes on with it, the step drops to the
    /// longest end of the run that does; `longest` is the length of what is left before the byte.
    struct Step {
        State to = none;
        std::int32_t longest = 0;
    };

    static constexpr State root = 0;
    static constexpr State none = UINT32_MAX;

    State addState(std::int32_t length);
    State append(State last, std::uint8_t symbol);
    State split(State from, std::uint8_t symbol);
    void sortByLength();
    void completeSteps();

    std::vector<std::string_view> m_names;
    std::vector<std::array<Step, symbolCount>> m_steps;
    std::vector<std::int32_t> m_lengths; ///< of the longest run of each state
    std::vector<State> m_links;
    std::vector<State> m_byLength;
};

} // namespace columnimport
