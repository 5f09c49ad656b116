// A line is cut by the laws of its delimiter, and a header is its file's first line cut so. The
// first byte tells how long the delimiter is, which follows; the rest is the file.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include <sys/mman.h>
#include <unistd.h>

#include "delimited/readHeader.h"
#include "delimited/splitLine.h"

using namespace columnimport;
using Fields = std::vector<std::string>;

namespace {

void require(bool holds, const char *law) {
    if (!holds) {
        std::fprintf(stderr, "broken: %s\n", law);
        std::abort();
    }
}

std::string without(const std::string &chars, std::string text) {
    const auto isOne = [&](char byte) { return chars.find(byte) != std::string::npos; };
    text.erase(std::remove_if(text.begin(), text.end(), isOne), text.end());
    return text;
}

std::string trimmed(const std::string &text) {
    return trimLeft(trimRight(text, blankChars), blankChars);
}

Fields split(const std::string &line, const std::string &delimiter) {
    Fields fields;
    splitLine(line, fields, delimiter);
    return fields;
}

void requireLawsOfSplitting(const std::string &line, const std::string &delimiter) {
    const std::string dense = without(blankChars, line);
    const Fields fields = split(line, delimiter);
    require(fields.empty() == dense.empty(), "no fields in a blank line only");
    std::string rest = trimmed(line);
    std::string joined;
    for (const std::string &field : fields) {
        const bool isLast = rest.find(delimiter) == std::string::npos;
        require(isLast == (&field == &fields.back()), "a field more than cuts");
        require(popField(rest, delimiter) == field, "as cut field by field");
        require(trimmed(field) == field, "trimmed fields");
        joined += without(blankChars, field) + (isLast ? "" : delimiter);
    }
    require(joined == dense || without(blankChars, delimiter) != delimiter, "all other bytes");
}

/// Through a file in memory.
void requireLawsOfHeaders(const std::string &content, char delimiter) {
    static const int file = memfd_create("header", 0);
    require(ftruncate(file, 0) == 0 && pwrite(file, content.data(), content.size(), 0) ==
                                           static_cast<ssize_t>(content.size()),
            "a file to read from");
    Fields wanted = split(content.substr(0, content.find('\n')), std::string(1, delimiter));
    for (std::string &name : wanted) {
        name = without("\"", name);
    }
    require(readHeader("/proc/self/fd/" + std::to_string(file), delimiter) == wanted,
            "the fields of the first line without quotes");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char *>(data), size);
    const std::size_t length = size == 0 ? 0 : 1 + data[0] % 3;
    if (size >= 1 + length && size > 1) {
        const std::string content = bytes.substr(1 + length);
        requireLawsOfSplitting(content, bytes.substr(1, length));
        requireLawsOfHeaders(content, bytes[1]);
    }
    return 0;
}
