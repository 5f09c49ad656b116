// SPDX-License-Identifier: MIT

#pragma once

#include "examples/drillhole/rows/RowCheck.h"

#include <glibmm/keyfile.h>

namespace drillhole {

/// How the dialog was last left with OK.
struct KeptMatch {
    std::vector<std::string> names;
    std::optional<char> delimiter; ///< none before the first import
    bool firstLineHoldsTitles = true;
};

/// What the program keeps from one run to the next, in a key file.
class Settings {
public:
    /// A file that is missing or that nobody can read leaves everything at its start.
    explicit Settings(const std::string &path);

    /// @param name  what is imported where, such as "collar from file"
    KeptMatch match(const std::string &name) const;
    void keepMatch(const std::string &name, const KeptMatch &match);

    ValueChoices choices(const Table &table) const;
    void keepChoices(const Table &table, const ValueChoices &choices);

    /// The connection string of the last source, without a password.
    std::string source() const;
    void keepSource(const std::string &connection);

    /// Why the last values could not be kept; empty if they were.
    const std::string &complaint() const { return m_complaint; }

private:
    int number(const std::string &group, const char *key, int otherwise) const;
    std::vector<std::string> texts(const std::string &group, const char *key) const;
    void setTexts(const std::string &group, const char *key, const std::vector<std::string> &texts);
    void save();

    std::string m_path;
    std::string m_complaint;
    Glib::KeyFile m_file;
};

} // namespace drillhole
