#include "examples/try_host/printResult.h"

#include "examples/try_host/labels.h"

#include <ostream>

void printResult(std::ostream &out, const Source &source, const ImportResult &result) {
    out << "result: " << (result.ok ? "ok" : "cancel") << '\n'
        << "delimiter: " << delimiterName(result.delimiter) << '\n'
        << "first line holds titles: " << (result.firstLineHoldsTitles ? "yes" : "no") << '\n';
    for (std::size_t row = 0; row < result.matches.size(); ++row) {
        out << source.appColumns[row] << '\t' << result.matches[row] << '\n';
    }
}
