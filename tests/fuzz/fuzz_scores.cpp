// Scores and runs are those of the reference to the last bit, the same both ways, and in bounds.

#include <algorithm>

#include "matching/columnNameScore.h"
#include "matching/reference/reference.h"
#include "tests/fuzz/fuzzing.h"

using namespace columnimport;
using fuzzing::require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::vector<std::string> names = fuzzing::lines(data, size);
    const std::string &a = names.front();
    const std::string b = names.size() > 1 ? names[1] : a;
    const auto lengthA = static_cast<std::int32_t>(a.size());
    const auto lengthB = static_cast<std::int32_t>(b.size());

    const std::int32_t run = longestCommonSubstringLength(a, b, lengthA, lengthB);
    require(run == reference::longestCommonSubstringLength(a, b, lengthA, lengthB),
            "the reference's run", {a, b});
    require(run == longestCommonSubstringLength(b, a, lengthB, lengthA), "the same run both ways",
            {a, b});
    require(run >= 0 && run <= std::min(lengthA, lengthB), "a run within both", {a, b});

    const double score = columnNameScore(a, b);
    require(score == reference::columnNameScore(a, b), "the reference's score", {a, b});
    require(score == columnNameScore(b, a), "the same score both ways", {a, b});
    require(score >= -1.0 / 6, "a score of at least -1/6", {a, b});
    const bool normalised = (a + b).find('#') == std::string::npos;
    require(!normalised || (a == b ? score == 1.0 : score < 1.0), "1 for equal names only", {a, b});
    return 0;
}
