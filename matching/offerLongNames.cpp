#include "matching/offerLongNames.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "matching/RunAutomaton.h"
#include "matching/blendedMeasure.h"
#include "matching/longestRun.h"
#include "matching/nameSymbols.h"

namespace columnimport {

namespace {

/// The bytes of a group of names, which bound the memory that reading a long name takes.
constexpr std::size_t groupBytes = 8192;

struct Name {
    Name(std::size_t position, std::string_view name) : index(position), bytes(name) {
        for (const char byte : name) {
            ++counts[symbolOf(byte)];
        }
    }

    std::size_t index;
    std::string_view bytes;
    std::array<std::size_t, symbolCount> counts{};
};

std::size_t sharedBytes(const Name &a, const Name &b) {
    std::size_t shared = 0;
    for (std::size_t symbol = 0; symbol < symbolCount; ++symbol) {
        shared += std::min(a.counts[symbol], b.counts[symbol]);
    }
    return shared;
}

/// The longest common runs of one long name and the names of a group. The automaton is made for
/// the first long name that needs it, and a long name is read for the first pair that needs it.
class GroupRuns {
public:
    explicit GroupRuns(const std::vector<Name> &group) : m_group(group) {}

    void turnTo(std::string_view longName) {
        m_longName = longName;
        m_runs.clear();
    }

    std::size_t withName(std::size_t position) {
        if (m_group[position].bytes.size() > groupBytes) {
            return longestRun(m_group[position].bytes, m_longName);
        }
        if (!m_automaton) {
            std::vector<std::string_view> names;
            for (const Name &name : m_group) {
                names.push_back(name.bytes);
            }
            m_automaton.emplace(std::move(names));
        }
        if (m_runs.empty()) {
            m_runs = m_automaton->longestRuns(m_longName);
        }
        return m_runs[position];
    }

private:
    const std::vector<Name> &m_group;
    std::optional<RunAutomaton> m_automaton;
    std::string_view m_longName;
    std::vector<std::size_t> m_runs;
};

/// Names that are long enough for the measure, from `begin` on and as many as make a group.
/// `begin` moves behind them.
std::vector<Name> nextGroup(const std::vector<std::string> &names, std::size_t &begin) {
    std::vector<Name> group;
    std::size_t bytes = 0;
    for (; begin < names.size(); ++begin) {
        bytes += names[begin].size();
        if (bytes > groupBytes && !group.empty()) {
            break;
        }
        if (names[begin].size() >= 3) {
            group.emplace_back(begin, names[begin]);
        }
    }
    return group;
}

/// Calls `offer(indexOfLong, indexOfOther, score)` for the pairs of a long name and an other name
/// that is `shorterBy` bytes shorter or more, unless their score is below
/// `scoreToReach(indexOfLong, indexOfOther)`.
template <typename ScoreToReach, typename Offer>
void measureLongNames(const std::vector<std::string> &longNames,
                      const std::vector<std::string> &otherNames, std::size_t shorterBy,
                      ScoreToReach scoreToReach, Offer offer) {
    std::vector<Name> readers;
    for (std::size_t i = 0; i < longNames.size(); ++i) {
        if (longNames[i].size() > maskedLength) {
            readers.emplace_back(i, longNames[i]);
        }
    }
    std::size_t begin = 0;
    while (!readers.empty() && begin < otherNames.size()) {
        const std::vector<Name> group = nextGroup(otherNames, begin);
        GroupRuns runs(group);
        for (const Name &reader : readers) {
            runs.turnTo(reader.bytes);
            for (std::size_t i = 0; i < group.size(); ++i) {
                const Name &name = group[i];
                if (name.bytes.size() + shorterBy > reader.bytes.size()) {
                    continue;
                }
                const auto measure = [&reader, &name](std::size_t shared, std::size_t run) {
                    return blendedMeasure(shared, shared, run, reader.bytes.size(),
                                          name.bytes.size());
                };
                const double reach = scoreToReach(reader.index, name.index);
                if (measure(name.bytes.size(), name.bytes.size()) < reach) {
                    continue;
                }
                const std::size_t shared = sharedBytes(reader, name);
                if (measure(shared, shared) >= reach) {
                    offer(reader.index, name.index, measure(shared, runs.withName(i)));
                }
            }
        }
    }
}

} // namespace

void offerLongNames(std::vector<Vote> &votes, const std::vector<std::string> &appColumns,
                    const std::vector<std::string> &fileColumns) {
    measureLongNames(
        fileColumns, appColumns, 0,
        [&votes](std::size_t file, std::size_t) { return votes[file].score; },
        [&votes](std::size_t file, std::size_t app, double score) {
            votes[file].offer(score, static_cast<std::int32_t>(app));
        });
    measureLongNames(
        appColumns, fileColumns, 1,
        [&votes](std::size_t, std::size_t file) { return votes[file].score; },
        [&votes](std::size_t app, std::size_t file, double score) {
            votes[file].offer(score, static_cast<std::int32_t>(app));
        });
}

} // namespace columnimport
