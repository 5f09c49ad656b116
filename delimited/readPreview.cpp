// SPDX-License-Identifier: MIT

#include "delimited/readPreview.h"

#include "delimited/SourceFile.h"

namespace columnimport {

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
