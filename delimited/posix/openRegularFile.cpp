// SPDX-License-Identifier: MIT

#include "delimited/SourceFile.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace columnimport {

std::FILE *openRegularFile(const std::string &path, std::error_code &fault) {
    // O_NONBLOCK also keeps a read from waiting: some regular files have nothing to read for the
    // moment.
    const int descriptor = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    struct stat status = {};
    if (descriptor < 0 || fstat(descriptor, &status) != 0) {
        fault = {errno, std::generic_category()};
    } else if (S_ISREG(status.st_mode)) {
        if (std::FILE *file = fdopen(descriptor, "rb")) {
            return file;
        }
        fault = {errno, std::generic_category()};
    } else if (S_ISDIR(status.st_mode)) {
        fault = std::make_error_code(std::errc::is_a_directory);
    }
    if (descriptor >= 0) {
        close(descriptor);
    }
    return nullptr;
}

} // namespace columnimport
