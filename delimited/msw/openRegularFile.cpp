// SPDX-License-Identifier: MIT

#include "delimited/SourceFile.h"

#include <cerrno>
#include <filesystem>

#include <share.h>
#include <sys/stat.h>

namespace columnimport {

std::FILE *openRegularFile(const std::string &path, std::error_code &fault) {
    try {
        const std::filesystem::path wide = std::filesystem::u8path(path);
        std::FILE *file = _wfsopen(wide.c_str(), L"rb", _SH_DENYNO);
        struct _stat64 status = {};
        if (file == nullptr || _fstat64(_fileno(file), &status) != 0) {
            fault = std::filesystem::is_directory(wide)
                        ? std::make_error_code(std::errc::is_a_directory)
                        : std::error_code(errno, std::generic_category());
        } else if ((status.st_mode & _S_IFMT) == _S_IFREG) {
            return file;
        }
        if (file != nullptr) {
            std::fclose(file);
        }
    } catch (const std::system_error &failure) {
        // The path is not valid UTF-8.
        fault = failure.code();
    }
    return nullptr;
}

} // namespace columnimport
