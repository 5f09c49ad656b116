#include "matching/RunAutomaton.h"

#include <algorithm>
#include <numeric>

namespace columnimport {

RunAutomaton::RunAutomaton(std::vector<std::string_view> names) : m_names(std::move(names)) {
    addState(0);
    m_links[root] = none;
    for (const std::string_view name : m_names) {
        State last = root;
        for (const char byte : name) {
            last = append(last, symbolOf(byte));
        }
    }
    sortByLength();
    completeSteps();
}

RunAutomaton::State RunAutomaton::addState(std::int32_t length) {
    m_steps.emplace_back();
    m_lengths.push_back(length);
    m_links.push_back(root);
    return static_cast<State>(m_steps.size() - 1);
}

/// The state of the run of `last` with one more byte at its end.
RunAutomaton::State RunAutomaton::append(State last, std::uint8_t symbol) {
    if (m_steps[last][symbol].to != none) {
        return split(last, symbol);
    }
    const State added = addState(m_lengths[last] + 1);
    State from = last;
    while (from != none && m_steps[from][symbol].to == none) {
        m_steps[from][symbol].to = added;
        from = m_links[from];
    }
    if (from != none) {
        // Splitting may move the states.
        const State link = split(from, symbol);
        m_links[added] = link;
    }
    return added;
}

/// The state whose longest run is the one of `from` with one more byte, which some name holds. If
/// it shares a state with longer runs, it gets one of its own.
RunAutomaton::State RunAutomaton::split(State from, std::uint8_t symbol) {
    const State shared = m_steps[from][symbol].to;
    if (m_lengths[shared] == m_lengths[from] + 1) {
        return shared;
    }
    const State own = addState(m_lengths[from] + 1);
    m_steps[own] = m_steps[shared];
    m_links[own] = m_links[shared];
    m_links[shared] = own;
    while (from != none && m_steps[from][symbol].to == shared) {
        m_steps[from][symbol].to = own;
        from = m_links[from];
    }
    return own;
}

void RunAutomaton::sortByLength() {
    m_byLength.resize(m_lengths.size());
    std::iota(m_byLength.begin(), m_byLength.end(), root);
    std::sort(m_byLength.begin(), m_byLength.end(),
              [this](State a, State b) { return m_lengths[a] < m_lengths[b]; });
}

void RunAutomaton::completeSteps() {
    for (const State state : m_byLength) {
        for (std::size_t symbol = 0; symbol < symbolCount; ++symbol) {
            Step &step = m_steps[state][symbol];
            if (step.to != none) {
                step.longest = m_lengths[state];
            } else if (state == root) {
                step = {root, -1};
            } else {
                step = m_steps[m_links[state]][symbol];
            }
        }
    }
}

std::vector<std::size_t> RunAutomaton::longestRuns(std::string_view text) const {
    std::vector<std::int32_t> runs(m_lengths.size(), 0);
    State state = root;
    std::int32_t run = 0;
    for (const char byte : text) {
        const Step &step = m_steps[state][symbolOf(byte)];
        state = step.to;
        run = std::min(run, step.longest) + 1;
        runs[state] = std::max(runs[state], run);
    }
    // Where a run was found, so were all its ends ...
    for (auto state_ = m_byLength.rbegin(); state_ != m_byLength.rend(); ++state_) {
        if (*state_ != root && runs[*state_] != 0) {
            runs[m_links[*state_]] = m_lengths[m_links[*state_]];
        }
    }
    // ... and where none was found, the longest one is an end of it.
    for (const State each : m_byLength) {
        if (each != root && runs[each] == 0) {
            runs[each] = runs[m_links[each]];
        }
    }
    std::vector<std::size_t> longest;
    longest.reserve(m_names.size());
    for (const std::string_view name : m_names) {
        std::int32_t best = 0;
        state = root;
        for (const char byte : name) {
            state = m_steps[state][symbolOf(byte)].to;
            best = std::max(best, runs[state]);
        }
        longest.push_back(static_cast<std::size_t>(best));
    }
    return longest;
}

} // namespace columnimport
