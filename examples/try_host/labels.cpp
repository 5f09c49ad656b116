#include "examples/try_host/labels.h"

#include <algorithm>

std::string delimiterName(char delimiter) {
    switch (delimiter) {
    case ',':
        return "comma";
    case ';':
        return "semicolon";
    case '\t':
        return "tab";
    case ' ':
        return "space";
    default:
        break;
    }
    const bool isPrintable = delimiter > ' ' && delimiter <= '~';
    return isPrintable ? std::string(1, delimiter)
                       : "byte " + std::to_string(static_cast<unsigned char>(delimiter));
}

std::string cuttingText(const Source &source, const ImportResult &result) {
    if (source.isTable()) {
        return {};
    }
    return "Delimiter: " + delimiterName(result.delimiter) + ". The first line holds " +
           (result.firstLineHoldsTitles ? "titles." : "no titles.");
}

std::string matchedText(const Source &source, const ImportResult &result) {
    const auto matched = std::count_if(result.matches.begin(), result.matches.end(),
                                       [](const std::string &match) { return !match.empty(); });
    return std::to_string(matched) + " of " + std::to_string(source.appColumns.size()) +
           " columns matched";
}
