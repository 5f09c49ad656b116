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

} // namespace

Settings::Settings(const std::string &path) : m_path(path) {
    try {
        m_file.load_from_file(path);
    } catch (const Glib::Error &) {
        return;
    }
}

KeptMatch Settings::match(const std::string &name) const {
    KeptMatch match{texts(name, "matches"), {}, number(name, "titles", 1) != 0};
    if (const int delimiter = number(name, "delimiter", 0)) {
        match.delimiter = static_cast<char>(delimiter);
    }
    return match;
}

void Settings::keepMatch(const std::string &name, const KeptMatch &match) {
    setTexts(name, "matches", match.names);
    m_file.set_integer(name, "delimiter", static_cast<unsigned char>(match.delimiter.value_or(0)));
    m_file.set_integer(name, "titles", match.firstLineHoldsTitles ? 1 : 0);
    save();
}

ValueChoices Settings::choices(const Table &table) const {
    const int below = number(table.name, "below detection", 0);
    return {static_cast<BelowDetection>(below > 0 && below < 4 ? below : 0),
            texts(table.name, "no value"), number(table.name, "decimal commas", 1) != 0};
}

void Settings::keepChoices(const Table &table, const ValueChoices &choices) {
    m_file.set_integer(table.name, "below detection", static_cast<int>(choices.belowDetection));
    setTexts(table.name, "no value", choices.noValue);
    m_file.set_integer(table.name, "decimal commas", choices.hasDecimalCommas ? 1 : 0);
    save();
}

std::string Settings::source() const {
    const std::vector<std::string> kept = texts(sourceGroup, "connection");
    return kept.empty() ? std::string() : kept.front();
}

void Settings::keepSource(const std::string &connection) {
    setTexts(sourceGroup, "connection", {withoutPassword(connection)});
    save();
}

int Settings::number(const std::string &group, const char *key, int otherwise) const {
    try {
        return m_file.get_integer(group, key);
    } catch (const Glib::Error &) {
        return otherwise;
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

void Settings::setTexts(const std::string &group, const char *key,
                        const std::vector<std::string> &texts) {
    // Names are bytes in whatever encoding, the file is UTF-8.
    std::vector<Glib::ustring> escaped;
    escaped.reserve(texts.size());
    for (const std::string &each : texts) {
        escaped.emplace_back(Glib::strescape(each));
    }
    m_file.set_string_list(group, key, escaped);
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
