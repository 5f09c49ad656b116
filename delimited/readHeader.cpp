// SPDX-License-Identifier: MIT

#include "delimited/readHeader.h"

#include "delimited/SourceFile.h"
#include "delimited/quotedFields.h"
#include "delimited/splitLine.h"
#include "names/isUtf8.h"

#include <algorithm>
#include <utility>

namespace columnimport {

namespace {

/// Removes the mark from the first line of a file if `mark` asks for that.
void removeUnwantedMark(std::string &firstLine, ByteOrderMark mark) {
    constexpr const char *bytes = "\xEF\xBB\xBF";
    if (mark == ByteOrderMark::dropped && firstLine.compare(0, 3, bytes) == 0) {
        firstLine.erase(0, 3);
    }
}

} // namespace

Header readHeader(const std::string &path, char delimiter, ByteOrderMark mark) {
    Header header;
    SourceFile file(path);
    std::string line = file.readLine();
    removeUnwantedMark(line, mark);
    header.reason = file.fault();
    if (!file.isReadable()) {
        return header;
    }
    const bool isMissing = line.empty() && file.isAtEnd();
    const bool isDelimited = line.find(delimiter) != std::string::npos;
    if (!isDelimited) {
        header.likely = likelyDelimiter(line);
    }
    header.fields = quotedFields(line, delimiter);
    splitLine(std::move(line), header.columns, std::string(1, delimiter));
    for (std::string &column : header.columns) {
        column.erase(std::remove(column.begin(), column.end(), '"'), column.end());
    }
    if (header.columns.empty()) {
        header.firstLine = isMissing ? FirstLine::missing : FirstLine::blank;
    } else {
        header.firstLine = isDelimited ? FirstLine::cut : FirstLine::undelimited;
    }
    return header;
}

// The system's message is in the locale's encoding, which may not be UTF-8.
std::string problemOf(const Header &header) {
    if (header.firstLine != FirstLine::unreadable) {
        return {};
    }
    if (!header.reason) {
        return "Not a regular file";
    }
    const std::string words = header.reason.message();
    return isUtf8(words) ? words : "Error " + std::to_string(header.reason.value());
}

std::string readPreview(const std::string &path, std::size_t most, ByteOrderMark mark) {
    std::string preview;
    SourceFile file(path);
    for (int line = 0; line < previewLines && !file.isAtEnd(); ++line) {
        preview += file.readLine(most);
        if (line == 0) {
            removeUnwantedMark(preview, mark);
        }
        preview += '\n';
    }
    return preview;
}

} // namespace columnimport
