// The fast matcher against the plain one, bit for bit, on names from a fixed seed.

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "matching/areSynonyms.h"
#include "matching/columnNameScore.h"
#include "matching/matchColumns.h"
#include "matching/normalizeColumnName.h"
#include "matching/reference/reference.h"
#include "matching/synonymTable.h"

namespace columnimport {
namespace {

/// Names that resemble each other: random ones over an alphabet, and earlier ones with a few bytes
/// cut out, put in, exchanged or moved to the front.
class NameSource {
public:
    NameSource(unsigned seed, std::string alphabet, std::size_t longest)
        : m_random(seed), m_alphabet(std::move(alphabet)), m_longest(longest) {}

    std::string next() {
        std::string name;
        if (m_made.empty() || below(3) == 0) {
            name.resize(below(m_longest + 1));
            for (char &byte : name) {
                byte = letter();
            }
        } else {
            name = m_made[below(m_made.size())];
            for (std::size_t change = below(4); change > 0 && !name.empty(); --change) {
                alter(name);
            }
        }
        m_made.push_back(name);
        return name;
    }

    std::vector<std::string> list(std::size_t longest) {
        std::vector<std::string> names(below(longest + 1));
        for (std::string &name : names) {
            name = next();
        }
        return names;
    }

private:
    std::size_t below(std::size_t end) { return m_random() % end; }
    char letter() { return m_alphabet[below(m_alphabet.size())]; }
    void alter(std::string &name) {
        const std::size_t at = below(name.size());
        switch (below(4)) {
        case 0:
            name.erase(at, 1 + below(3));
            break;
        case 1:
            name.insert(at, 1 + below(3), letter());
            break;
        case 2:
            name[at] = letter();
            break;
        default:
            name = name.substr(at) + name.substr(0, at);
        }
    }

    std::mt19937 m_random;
    std::string m_alphabet;
    std::size_t m_longest;
    std::vector<std::string> m_made;
};

/// Short and long names, in alphabets that make many ties and in ones that make few.
std::vector<NameSource> nameSources() {
    const std::string all = "abcdefghijklmnopqrstuvwxyz0123456789_";
    return {{1, "ab", 6},       {2, "abc", 12}, {3, "abcdefgh", 10}, {4, all, 20}, {5, "ab", 140},
            {6, "abcdef_", 90}, {7, all, 130},  {8, "aB %_/gt", 12}, {9, "ab#", 8}};
}

TEST(FastMatcher, KnowsTheSynonymsOfTheReference) {
    std::vector<std::string> words = {"", "z_utm", "plong_e"};
    for (const SynonymClass &row : synonymTable) {
        words.emplace_back(row.head);
        words.insert(words.end(), row.listed.begin(), row.listed.end());
    }
    for (const std::string &a : words) {
        for (const std::string &b : words) {
            EXPECT_EQ(areSynonyms(a, b), reference::areSynonyms(a, b)) << a << ' ' << b;
        }
    }
}

TEST(FastMatcher, ScoresEveryPairAsTheReferenceDoes) {
    for (NameSource &source : nameSources()) {
        for (int pair = 0; pair < 1500; ++pair) {
            const std::string a = source.next();
            const std::string b = source.next();
            const auto lengthA = static_cast<std::int32_t>(a.size());
            const auto lengthB = static_cast<std::int32_t>(b.size());
            ASSERT_EQ(longestCommonSubstringLength(a, b, lengthA, lengthB),
                      reference::longestCommonSubstringLength(a, b, lengthA, lengthB))
                << a << '\n'
                << b;
            ASSERT_EQ(columnNameScore(a, b), reference::columnNameScore(a, b)) << a << '\n' << b;
            ASSERT_EQ(normalizeColumnName(a), reference::normalizeColumnName(a));
        }
    }
}

TEST(FastMatcher, ProposesWhatTheReferenceProposes) {
    // Few names of each kind, more application columns than are counted at once, and more bytes of
    // long names than are read at once.
    struct Lists {
        std::size_t app, file;
        int rounds;
    };
    for (const Lists &lists : {Lists{24, 24, 30}, Lists{400, 40, 1}, Lists{12, 500, 1}}) {
        for (NameSource &source : nameSources()) {
            for (int round = 0; round < lists.rounds; ++round) {
                const std::vector<std::string> app = source.list(lists.app);
                const std::vector<std::string> file = source.list(lists.file);
                ASSERT_EQ(matchColumns(app, file), reference::matchColumns(app, file))
                    << ::testing::PrintToString(app) << '\n'
                    << ::testing::PrintToString(file);
            }
        }
    }
}

} // namespace
} // namespace columnimport
