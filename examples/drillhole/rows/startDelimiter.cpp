// SPDX-License-Identifier: MIT

#include "examples/drillhole/rows/startDelimiter.h"

#include "examples/drillhole/rows/CsvFile.h"

namespace drillhole {

namespace {

constexpr int rowCount = 10;

struct Cut {
    int evenRows = 0; ///< 0 if the first row stays whole
    std::size_t fields = 0;
};

Cut cutOf(const std::string &path, char delimiter) {
    CsvFile file(path, delimiter);
    Cut cut;
    Row row;
    for (int i = 0; i < rowCount && file.next(row); ++i) {
        cut.fields = i == 0 ? row.fields.size() : cut.fields;
        cut.evenRows += row.refusal == nullptr && row.fields.size() == cut.fields ? 1 : 0;
    }
    return cut.fields > 1 ? cut : Cut();
}

bool isBetter(const Cut &cut, const Cut &other) {
    return cut.evenRows != other.evenRows ? cut.evenRows > other.evenRows
                                          : cut.fields > other.fields;
}

} // namespace

char startDelimiter(const std::string &path, std::optional<char> lastUsed) {
    char best = lastUsed.value_or(',');
    Cut bestCut;
    for (const char delimiter : {',', ';', '\t', ' ', '|'}) {
        const Cut cut = cutOf(path, delimiter);
        if (isBetter(cut, bestCut)) {
            best = delimiter;
            bestCut = cut;
        }
    }
    if (lastUsed && cutOf(path, *lastUsed).evenRows >= bestCut.evenRows) {
        return *lastUsed;
    }
    return best;
}

} // namespace drillhole
