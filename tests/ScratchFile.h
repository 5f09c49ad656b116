// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

/// A file with this content, which exists as long as the object.
class ScratchFile {
public:
    explicit ScratchFile(const std::string &content)
        : m_path(std::filesystem::temp_directory_path() /
                 ("columnimport-" + std::to_string(std::random_device()()))) {
        write(content);
    }
    ~ScratchFile() {
        std::error_code isLeft;
        std::filesystem::remove(m_path, isLeft);
    }
    ScratchFile(const ScratchFile &) = delete;
    ScratchFile &operator=(const ScratchFile &) = delete;

    void write(const std::string &content) const {
        std::ofstream(m_path, std::ios::binary) << content;
    }

    /// In UTF-8.
    std::string path() const { return m_path.u8string(); }

private:
    std::filesystem::path m_path;
};
