// SPDX-License-Identifier: MIT

#include "drillhole/rows/startDelimiter.h"

#include "drillhole/rows/CsvFile.h"

namespace drillhole {

namespace {

constexpr int rowCount = 10;

/// How many rows are cut like the first one, and into how many fields; the better cut is greater.
using Cut = std::pair<int, std::size_t>;

Cut cutOf(const std::string &path, char delimiter) {
    CsvFile file(path, delimiter);
    Cut cut;
    Row row;
    for (int i = 0; i < rowCount && file.next(row); ++i) {
        cut.second = i == 0 ? row.fields.size() : cut.second;
        cut.first += row.refusal == nullptr && row.fields.size() == cut.second ? 1 : 0;
    }
    return cut.second > 1 ? cut : Cut();
}

} // namespace

char startDelimiter(const std::string &path, std::optional<char> lastUsed) {
    char best = lastUsed.value_or(',');
    Cut bestCut;
    for (const char delimiter : {',', ';', '\t', ' ', '|'}) {
        const Cut cut = cutOf(path, delimiter);
        if (cut > bestCut) {
            best = delimiter;
            bestCut = cut;
        }
    }
    return lastUsed && cutOf(path, *lastUsed).first >= bestCut.first ? *lastUsed : best;
}

} // namespace drillhole
