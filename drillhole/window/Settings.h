// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include <glibmm/keyfile.h>

namespace drillhole {

/// What the program keeps from one run to the next: texts in a key file.
class Settings {
public:
    /// A file that is missing or that nobody can read leaves everything at its start.
    explicit Settings(const std::string &path);

    /// What is kept under a key of a group, bytes as they were; nothing if nothing is.
    std::vector<std::string> texts(const std::string &group, const char *key) const;

    /// The first of these texts, or an empty one.
    std::string text(const std::string &group, const char *key) const;

    void keep(const std::string &group, const char *key, const std::vector<std::string> &texts);

    /// Why the last texts could not be kept; empty if they were.
    const std::string &complaint() const { return m_complaint; }

private:
    std::string m_path;
    std::string m_complaint;
    Glib::KeyFile m_file;
};

} // namespace drillhole
