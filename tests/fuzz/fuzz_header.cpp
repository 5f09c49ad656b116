// A line is cut by the laws of its delimiter, and a header is its file's first line cut so. The
// first byte tells how long the delimiter is, which follows; the rest is the file.

#include <algorithm>

#include <sys/mman.h>
#include <unistd.h>

#include "delimited/readHeader.h"
#include "delimited/splitLine.h"
#include "tests/fuzz/fuzzing.h"

using namespace columnimport;
using fuzzing::require;
using Fields = std::vector<std::string>;

namespace {

bool hasBlanksInside(const std::string &text) {
    return text.find_first_of(blankChars) != std::string::npos;
}

bool isTrimmed(const std::string &text) {
    return trimLeft(trimRight(text, blankChars), blankChars) == text;
}

Fields fieldsOf(const std::string &line, const std::string &delimiter) {
    Fields fields;
    splitLine(line, fields, delimiter);
    return fields;
}

Fields cutFieldByField(std::string rest, const std::string &delimiter) {
    Fields fields;
    while (rest.find(delimiter) != std::string::npos) {
        fields.push_back(popField(rest, delimiter));
    }
    fields.push_back(rest);
    return fields;
}

std::size_t countOf(const std::string &part, const std::string &text) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos;
         at = text.find(part, at + part.size())) {
        ++count;
    }
    return count;
}

std::string joined(const Fields &fields, const std::string &delimiter) {
    std::string line = fields.front();
    for (std::size_t i = 1; i < fields.size(); ++i) {
        line += delimiter + fields[i];
    }
    return line;
}

void requireLawsOfSplitting(const std::string &line, const std::string &delimiter) {
    const Fields fields = fieldsOf(line, delimiter);
    const std::string core = trimLeft(trimRight(line, blankChars), blankChars);
    require(fields.empty() == core.empty(), "no fields in a blank line only", {line, delimiter});
    if (core.empty()) {
        return;
    }
    require(fields == cutFieldByField(core, delimiter), "as cut field by field", {line, delimiter});
    require(std::all_of(fields.begin(), fields.end(), isTrimmed), "trimmed fields",
            {line, delimiter});
    if (!hasBlanksInside(delimiter)) {
        require(fields.size() == countOf(delimiter, core) + 1, "a field more than delimiters",
                {line, delimiter});
        require(delimiter.size() > 1 || fieldsOf(joined(fields, delimiter), delimiter) == fields,
                "the same fields when joined and cut again", {line, delimiter});
    }
}

/// The header of a file in memory with this content.
Fields headerOf(const std::string &content, char delimiter) {
    static const int file = memfd_create("header", 0);
    static const std::string path = "/proc/self/fd/" + std::to_string(file);
    const bool isWritten =
        ftruncate(file, 0) == 0 &&
        pwrite(file, content.data(), content.size(), 0) == static_cast<ssize_t>(content.size());
    require(isWritten, "a file to read from", {content});
    return readHeader(path, delimiter);
}

void requireLawsOfHeaders(const std::string &content, char delimiter) {
    const Fields header = headerOf(content, delimiter);
    Fields wanted = fieldsOf(content.substr(0, content.find('\n')), std::string(1, delimiter));
    for (std::string &name : wanted) {
        while (name.find('"') != std::string::npos) {
            name.erase(name.find('"'), 1);
        }
    }
    require(header == wanted, "the fields of the first line without quotes",
            {content, std::string(1, delimiter)});
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char *>(data), size);
    const std::size_t length = size == 0 ? 0 : 1 + data[0] % 3;
    if (size < 1 + length) {
        return 0;
    }
    const std::string delimiter = bytes.substr(1, length);
    const std::string content = bytes.substr(1 + length);
    requireLawsOfSplitting(content, delimiter);
    requireLawsOfHeaders(content, delimiter.front());
    return 0;
}
