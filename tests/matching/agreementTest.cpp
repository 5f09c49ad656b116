// The matcher against the reference on all synonyms, and on names from fixed seeds.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "matching/synonymTable.h"
#include "tests/matching/agreement.h"

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

    std::string alphabet;
    std::size_t longest;
    Names made = {""};
    std::mt19937 random{1};
};

} // namespace

TEST(Matcher, KnowsTheSynonymsOfTheReferenceAndNoOthers) {
    Names words = {"", "z_utm", "plong_e"};
    for (const SynonymClass &row : synonymTable) {
        words.emplace_back(row.head);
        words.insert(words.end(), row.listed.begin(), row.listed.end());
    }
    // All words of the reference, which are 22 heads and 68 listed ones.
    ASSERT_EQ(words.size(), 3 + 22 + 68);
    for (const std::string &a : words) {
        for (const std::string &b : words) {
            EXPECT_EQ(disagreement({a}, {b}), "") << a << ' ' << b;
        }
    }
}

TEST(Matcher, AgreesWithTheReferenceOnNamesThatResembleEachOther) {
    // Short names and long ones, in alphabets that make many ties and in ones that make few; few
    // names of each kind, and more application columns than are counted at once.
    const std::string all = "abcdefghijklmnopqrstuvwxyz0123456789_";
    const std::pair<std::string, std::size_t> kinds[] = {
        {"ab", 6},   {"abc", 12}, {"abcdefgh", 10},          {all, 20},
        {"ab", 140}, {all, 130},  {"aB %_/gtT\xE9\xFF", 12}, {"ab#", 8}};
    for (const auto &[alphabet, longest] : kinds) {
        NameSource source{alphabet, longest};
        for (int round = 0; round < 40; ++round) {
            const std::size_t most = round == 0 ? 400 : 24;
            const Names app = source.list(most), file = source.list(24);
            ASSERT_EQ(disagreement(app, file), "")
                << testing::PrintToString(app) << testing::PrintToString(file);
        }
    }
}
