// SPDX-License-Identifier: MIT

#include "examples/drillhole/rows/startDelimiter.h"

#include "examples/drillhole/rows/CsvParser.h"
#include "examples/drillhole/rows/Fault.h"

#include <string>

namespace drillhole {

namespace {

constexpr int lineCount = 10;

struct Cut {
    int evenLines = 0; ///< 0 if the first line stays whole
    std::size_t fields = 0;
};

Cut cutOf(std::string_view head, char delimiter) {
    Cut cut;
    try {
        CsvParser parser(delimiter);
        parser.parse(std::string(head) + '\n');
        Row row;
        for (int line = 0; line < lineCount && parser.next(row); ++line) {
            if (line == 0) {
                cut.fields = row.fields.size();
            }
            cut.evenLines += row.fields.size() == cut.fields ? 1 : 0;
        }
    } catch (const Fault &) {
        return {}; // no text that this delimiter cuts
    }
    return cut.fields > 1 ? cut : Cut();
}

bool isBetter(const Cut &cut, const Cut &other) {
    return cut.evenLines != other.evenLines ? cut.evenLines > other.evenLines
                                            : cut.fields > other.fields;
}

} // namespace

char startDelimiter(std::string_view head, std::optional<char> lastUsed) {
    char best = lastUsed.value_or(',');
    Cut bestCut;
    for (const char delimiter : {',', ';', '\t', ' ', '|'}) {
        const Cut cut = cutOf(head, delimiter);
        if (isBetter(cut, bestCut)) {
            best = delimiter;
            bestCut = cut;
        }
    }
    if (lastUsed && cutOf(head, *lastUsed).evenLines >= bestCut.evenLines) {
        return *lastUsed;
    }
    return best;
}

} // namespace drillhole
