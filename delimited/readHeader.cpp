// SPDX-License-Identifier: MIT

#include "delimited/readHeader.h"

#include "delimited/SourceFile.h"
#include "delimited/splitLine.h"

#include <algorithm>

namespace columnimport {

std::vector<std::string> readHeader(const std::string &path, char delimiter) {
    std::vector<std::string> fields;
    SourceFile file(path);
    if (!file.isOpen()) {
        return fields;
    }
    splitLine(file.readLine(), fields, std::string(1, delimiter));
    for (std::string &field : fields) {
        field.erase(std::remove(field.begin(), field.end(), '"'), field.end());
    }
    return fields;
}

} // namespace columnimport
