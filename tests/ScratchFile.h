#pragma once

#include <filesystem>
#include <fstream>
#include <string>

#include <stdlib.h>
#include <unistd.h>

/// A file with this content that lives as long as the object.
class ScratchFile {
public:
    explicit ScratchFile(const std::string &content)
        : m_path(std::filesystem::temp_directory_path() / "columnimport-XXXXXX") {
        close(mkstemp(m_path.data()));
        std::ofstream(m_path, std::ios::binary) << content;
    }
    ~ScratchFile() { unlink(m_path.c_str()); }
    ScratchFile(const ScratchFile &) = delete;
    ScratchFile &operator=(const ScratchFile &) = delete;

    const std::string &path() const { return m_path; }

private:
    std::string m_path;
};
