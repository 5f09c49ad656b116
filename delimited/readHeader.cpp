// SPDX-License-Identifier: MIT

#include "delimited/readHeader.h"

#include "delimited/SourceFile.h"
#include "delimited/splitLine.h"

#include <algorithm>

namespace columnimport {

Header readHeader(const std::string &path, char delimiter) {
    Header header;
    SourceFile file(path);
    const std::string line = file.readLine();
    header.reason = file.fault();
    if (!file.isReadable()) {
        return header;
    }
    splitLine(line, header.columns, std::string(1, delimiter));
    for (std::string &column : header.columns) {
        column.erase(std::remove(column.begin(), column.end(), '"'), column.end());
    }
    if (header.columns.empty()) {
        header.firstLine = line.empty() && file.isAtEnd() ? FirstLine::missing : FirstLine::blank;
    } else {
        const bool isDelimited = line.find(delimiter) != std::string::npos;
        header.firstLine = isDelimited ? FirstLine::cut : FirstLine::undelimited;
    }
    return header;
}

} // namespace columnimport
