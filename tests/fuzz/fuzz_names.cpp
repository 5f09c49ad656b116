// The normal form of a name, and the score and the run of the first two lines, obey their laws and
// are those of the reference to the last bit.

#include "matching/columnNameScore.h"
#include "matching/normalizeColumnName.h"
#include "matching/reference/reference.h"
#include "tests/fuzz/fuzzing.h"

using namespace columnimport;

namespace {

void requireLawsOfNormalForms(const std::string &written) {
    const std::string name = normalizeColumnName(written);
    require(name == reference::normalizeColumnName(written), "the reference's form");
    require(name.empty() == written.empty(), "empty only for an empty name");
    require(name.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789_") == std::string::npos,
            "lower-case letters, digits and underscores");
    require(normalizeColumnName(name) == name, "normalised once for all");
}

void requireLawsOfScores(const std::string &a, const std::string &b) {
    const auto sizeA = static_cast<std::int32_t>(a.size());
    const auto sizeB = static_cast<std::int32_t>(b.size());
    const std::int32_t run = longestCommonSubstringLength(a, b, sizeA, sizeB);
    require(run == reference::longestCommonSubstringLength(a, b, sizeA, sizeB), "reference's run");
    require(run == longestCommonSubstringLength(b, a, sizeB, sizeA), "the same run both ways");
    require(run >= 0 && run <= std::min(sizeA, sizeB), "a run within both");

    const double score = columnNameScore(a, b);
    require(score == reference::columnNameScore(a, b), "the reference's score");
    require(score == columnNameScore(b, a), "the same score both ways");
    require(score >= -1.0 / 6, "a score of at least -1/6");
    const bool normalised = (a + b).find('#') == std::string::npos;
    require(!normalised || (a == b ? score == 1.0 : score < 1.0), "1 for equal names only");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    requireLawsOfNormalForms(std::string(data, data + size));
    const std::vector<std::string> texts = lines(data, size, 3);
    requireLawsOfScores(texts[0], texts[1]);
    require(texts[1].empty() || replaceAll(texts[0], texts[1], texts[2]) ==
                                    reference::replaceAll(texts[0], texts[1], texts[2]),
            "the reference's replacement");
    return 0;
}
