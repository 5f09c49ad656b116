// SPDX-License-Identifier: MIT

// The cut of a line follows the laws of its delimiter, and a header is the cut of its file's first
// line. The first byte of an input is the length of the delimiter, which follows; the rest is the
// file.

#include <algorithm>
#include <cstdint>
#include <fstream>

#include <sys/mman.h>

#include "delimited/readHeader.h"
#include "delimited/splitLine.h"
#include "tests/fuzz/require.h"

using namespace columnimport;
using Fields = std::vector<std::string>;

namespace {

Fields fieldsOf(const std::string &line, const std::string &delimiter) {
    Fields fields;
    splitLine(line, fields, delimiter);
    std::string rest(trimmed(line));
    require(fields.empty() == rest.empty(), "no fields in a blank line only");
    for (const std::string &field : fields) {
        const bool isLast = rest.find(delimiter) == std::string::npos;
        require(isLast == (&field == &fields.back()), "a field more than cuts");
        require(popField(rest, delimiter) == field, "as cut field by field");
        require(trimmed(field) == field, "trimmed fields");
    }
    return fields;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char *>(data), size);
    const std::size_t length = size == 0 ? 0 : 1 + data[0] % 3;
    if (size <= length) {
        return 0;
    }
    const std::string content = bytes.substr(1 + length);
    fieldsOf(content, bytes.substr(1, length));

    static const std::string file = "/proc/self/fd/" + std::to_string(memfd_create("header", 0));
    std::ofstream(file, std::ios::binary) << content;
    Fields names = fieldsOf(content.substr(0, content.find('\n')), bytes.substr(1, 1));
    for (std::string &name : names) {
        name.erase(std::remove(name.begin(), name.end(), '"'), name.end());
    }
    const auto likely = likelyDelimiterOfFile(file);
    require(!likely ||
                fieldsOf(content.substr(0, content.find('\n')), {likely->delimiter}).size() > 1,
            "a likely delimiter that cuts");
    require(readHeader(file, bytes[1]).columns == names,
            "the fields of the first line without quotes");
    return 0;
}
