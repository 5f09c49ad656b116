// SPDX-License-Identifier: MIT

#include "examples/drillhole/window/Settings.h"

#include "examples/drillhole/database/connection.h"

#include <filesystem>
#include <system_error>

#include <glibmm/error.h>
#include <glibmm/fileutils.h>
#include <glibmm/stringutils.h>

namespace drillhole {

namespace {

constexpr const char *sourceGroup = "source";

/// A value of the file, or the other one where it is missing or no such value.
template <typename Get, typename Value>
Value valueOr(Get get, Value otherwise) {
    try {
        return get();
    } catch (const Glib::Error &) {
        return otherwise;
    }
}

} // namespace

Settings::Settings(const std::string &path) : m_path(path) {
    try {
        m_file.load_from_file(path);
    } catch (const Glib::Error &) {
        return;
    }
}

KeptMatch Settings::match(const std::string &name) const {
    KeptMatch match;
    const auto names =
        valueOr([&] { return std::vector<Glib::ustring>(m_file.get_string_list(name, "matches")); },
                std::vector<Glib::ustring>());
    for (const Glib::ustring &each : names) {
        match.matches.push_back(Glib::strcompress(each));
    }
    const int delimiter = valueOr([&] { return m_file.get_integer(name, "delimiter"); }, 0);
    if (delimiter > 0) {
        match.delimiter = static_cast<char>(delimiter);
    }
    match.firstLineHoldsTitles = valueOr([&] { return m_file.get_boolean(name, "titles"); }, true);
    return match;
}

void Settings::keepMatch(const std::string &name, const KeptMatch &match) {
    // Names are bytes in whatever encoding, the file is UTF-8.
    std::vector<Glib::ustring> names;
    for (const std::string &each : match.matches) {
        names.emplace_back(Glib::strescape(each));
    }
    m_file.set_string_list(name, "matches", names);
    if (match.delimiter) {
        m_file.set_integer(name, "delimiter", static_cast<unsigned char>(*match.delimiter));
        m_file.set_boolean(name, "titles", match.firstLineHoldsTitles);
    }
    save();
}

std::string Settings::source() const {
    return valueOr([&] { return m_file.get_string(sourceGroup, "connection"); }, Glib::ustring());
}

void Settings::keepSource(const std::string &connection) {
    m_file.set_string(sourceGroup, "connection", withoutPassword(connection));
    save();
}

void Settings::save() {
    std::error_code ignored;
    std::filesystem::create_directories(std::filesystem::path(m_path).parent_path(), ignored);
    try {
        Glib::file_set_contents(m_path, m_file.to_data());
        m_complaint.clear();
    } catch (const Glib::Error &) {
        m_complaint =
            "How you matched can't be kept for the next import. See that you may write to " +
            m_path + '.';
    }
}

} // namespace drillhole
