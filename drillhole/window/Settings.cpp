// SPDX-License-Identifier: MIT

#include "drillhole/window/Settings.h"

#include <filesystem>
#include <system_error>

#include <glibmm/error.h>
#include <glibmm/fileutils.h>
#include <glibmm/stringutils.h>

namespace drillhole {

Settings::Settings(const std::string &path) : m_path(path) {
    try {
        m_file.load_from_file(path);
    } catch (const Glib::Error &) {
        return;
    }
}

std::vector<std::string> Settings::texts(const std::string &group, const char *key) const {
    std::vector<std::string> texts;
    try {
        for (const Glib::ustring &each : m_file.get_string_list(group, key)) {
            texts.push_back(Glib::strcompress(each));
        }
    } catch (const Glib::Error &) {
        return {};
    }
    return texts;
}

std::string Settings::text(const std::string &group, const char *key) const {
    const std::vector<std::string> kept = texts(group, key);
    return kept.empty() ? std::string() : kept.front();
}

void Settings::keep(const std::string &group, const char *key,
                    const std::vector<std::string> &texts) {
    // Names are bytes in whatever encoding, the file is UTF-8.
    std::vector<Glib::ustring> escaped;
    escaped.reserve(texts.size());
    for (const std::string &each : texts) {
        escaped.emplace_back(Glib::strescape(each));
    }
    m_file.set_string_list(group, key, escaped);
    std::error_code ignored; // writing the file says what is wrong there
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
