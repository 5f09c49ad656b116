// The fast matcher against the plain one, bit for bit, on names from fixed seeds.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "matching/areSynonyms.h"
#include "matching/columnNameScore.h"
#include "matching/matchColumns.h"
#include "matching/normalizeColumnName.h"
#include "matching/reference/reference.h"
#include "matching/synonymTable.h"

using namespace columnimport;
using Names = std::vector<std::string>;

namespace {

/// Names that resemble each other: random ones over an alphabet, and earlier ones with a few bytes
/// cut out, put in, exchanged or moved to the front.
struct NameSource {
    std::size_t below(std::size_t end) { return random() % end; }
    char letter() { return alphabet[below(alphabet.size())]; }

    std::string next() {
        std::string name = made[below(made.size())];
        if (below(3) == 0) {
            name.resize(below(longest + 1));
            std::generate(name.begin(), name.end(), [this] { return letter(); });
        }
        for (std::size_t change = below(4); change > 0; --change) {
            const std::size_t at = below(name.size() + 1);
            name = below(4) == 0 ? name.substr(at) + name.substr(0, at)
                                 : name.replace(at, below(4), below(4), letter());
        }
        made.push_back(name);
        return name;
    }

    Names list(std::size_t most) {
        Names names(below(most + 1));
        std::generate(names.begin(), names.end(), [this] { return next(); });
        return names;
    }

    unsigned seed;
    std::string alphabet;
    std::size_t longest;
    Names made = {""};
    std::mt19937 random{seed};
};

/// Short and long names, in alphabets that make many ties and in ones that make few.
std::vector<NameSource> nameSources() {
    const std::string all = "abcdefghijklmnopqrstuvwxyz0123456789_";
    return {{1, "ab", 6},   {2, "abc", 12}, {3, "abcdefgh", 10},          {4, all, 20},
            {5, "ab", 140}, {6, all, 130},  {7, "aB %_/gtT\xE9\xFF", 12}, {8, "ab#", 8}};
}

} // namespace

TEST(FastMatcher, KnowsTheSynonymsOfTheReference) {
    Names words = {"", "z_utm", "plong_e"};
    for (const SynonymClass &row : synonymTable) {
        words.emplace_back(row.head);
        words.insert(words.end(), row.listed.begin(), row.listed.end());
    }
    // All words of the reference, which are 22 heads and 68 listed ones.
    ASSERT_EQ(words.size(), 3 + 22 + 68);
    for (const std::string &a : words) {
        for (const std::string &b : words) {
            EXPECT_EQ(areSynonyms(a, b), reference::areSynonyms(a, b)) << a << ' ' << b;
            EXPECT_EQ(matchColumns({a}, {b}), reference::matchColumns({a}, {b})) << a << ' ' << b;
        }
    }
}

TEST(FastMatcher, ScoresEveryPairAsTheReferenceDoes) {
    for (NameSource &source : nameSources()) {
        for (int pair = 0; pair < 1500; ++pair) {
            const std::string a = source.next();
            const std::string b = source.next();
            const double score = columnNameScore(a, b);
            ASSERT_EQ(score, reference::columnNameScore(a, b)) << a << '\n' << b;
            ASSERT_EQ(score, columnNameScore(b, a)) << a << '\n' << b;
            ASSERT_EQ(normalizeColumnName(a), reference::normalizeColumnName(a));
        }
    }
}

TEST(FastMatcher, ProposesWhatTheReferenceProposes) {
    // Few names of each kind, more application columns than are counted at once, and more bytes of
    // long names than are read at once.
    const std::size_t lists[][3] = {{24, 24, 30}, {400, 40, 1}, {12, 500, 1}};
    for (const auto &[longestApp, longestFile, rounds] : lists) {
        for (NameSource &source : nameSources()) {
            for (std::size_t round = 0; round < rounds; ++round) {
                const Names app = source.list(longestApp);
                const Names file = source.list(longestFile);
                SCOPED_TRACE(testing::PrintToString(app) + testing::PrintToString(file));
                ASSERT_EQ(matchColumns(app, file), reference::matchColumns(app, file));
            }
        }
    }
}
