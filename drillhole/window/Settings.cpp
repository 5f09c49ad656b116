// SPDX-License-Identifier: MIT

#include "drillhole/window/Settings.h"

#include <glib/gstdio.h>
#include <glibmm/error.h>
#include <glibmm/miscutils.h>
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
    g_mkdir_with_parents(Glib::path_get_dirname(m_path).c_str(), 0777);
    try {
        m_file.save_to_file(m_path);
        m_complaint.clear();
    } catch (const Glib::Error &) {
        m_complaint =
            "How you matched can't be kept for the next import. See that you may write to " +
            m_path + '.';
    }
}

} // namespace drillhole
