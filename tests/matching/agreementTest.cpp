// SPDX-License-Identifier: MIT

// Compares the matcher with its rules, for all synonyms and for names from a fixed seed.

#include "tests/matching/agreement.h"

#include <gtest/gtest.h>

#include <random>

#include "matching/synonymTable.h"

using namespace columnimport;
using Names = std::vector<std::string>;

TEST(Matcher, AgreesWithItsRulesOnAllSynonyms) {
    Names words = {"", "z_utm", "plong_e"};
    for (const auto &[head, listed] : synonymTable()) {
        words.push_back(head);
        words.insert(words.end(), listed.begin(), listed.end());
    }
    for (const std::string &a : words) {
        for (const std::string &b : words) {
            EXPECT_EQ(disagreement({a}, {b}), "") << a << ' ' << b;
        }
    }
}

TEST(Matcher, AgreesWithItsRulesOnSimilarNames) {
    // Short and long names, in alphabets that give many ties or few.
    const std::string all = "abcdefghijklmnopqrstuvwxyz0123456789_";
    const struct Kind {
        std::string letters;
        std::size_t longest;
    } kinds[] = {{"ab", 6},   {"abc", 12}, {"abcdefgh", 10},          {all, 20},
                 {"ab", 140}, {all, 130},  {"aB %_/gtT\xE9\xFF", 12}, {"ab#", 8}};
    std::mt19937 random{1};
    const auto below = [&](std::size_t end) { return random() % end; };
    for (const Kind &kind : kinds) {
        const auto letter = [&] { return kind.letters[below(kind.letters.size())]; };
        Names made = {""};
        // A new name or an earlier one, with bytes removed, inserted, swapped or moved to the
        // front.
        const auto next = [&] {
            std::string name = made[below(made.size())];
            if (below(3) == 0) {
                name.resize(below(kind.longest + 1));
                std::generate(name.begin(), name.end(), letter);
            }
            for (std::size_t change = below(4); change > 0; --change) {
                const std::size_t at = below(name.size() + 1);
                name = below(4) == 0 ? name.substr(at) + name.substr(0, at)
                                     : name.replace(at, below(4), below(4), letter());
            }
            made.push_back(name);
            return name;
        };
        for (int round = 0; round < 30; ++round) {
            // One case has more application columns than are counted at once.
            Names app(below(round == 0 ? 400 : 24)), file(below(24));
            std::generate(app.begin(), app.end(), next);
            std::generate(file.begin(), file.end(), next);
            Alternatives alternatives(below(app.size() + 1), Names(below(3)));
            for (Names &words : alternatives) {
                std::generate(words.begin(), words.end(), next);
            }
            ASSERT_EQ(disagreement(app, file), "")
                << testing::PrintToString(app) << testing::PrintToString(file);
            ASSERT_EQ(disagreement(app, file, alternatives), "")
                << testing::PrintToString(alternatives) << testing::PrintToString(app)
                << testing::PrintToString(file);
        }
    }
}
