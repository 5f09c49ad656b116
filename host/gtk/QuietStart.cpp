// SPDX-License-Identifier: MIT

#include "QuietStart.h"

#include <string>

#include <sys/mman.h>

namespace columnimport {

namespace {

std::string contentOf(std::FILE *file) {
    std::string content;
    std::rewind(file);
    for (int byte = std::getc(file); byte != EOF; byte = std::getc(file)) {
        content += static_cast<char>(byte);
    }
    return content;
}

/// Takes out the line that holds `words`, and the line feed in front of it that GLib begins a
/// warning with.
void eraseLine(std::string &text, const char *words) {
    const std::size_t found = text.find(words);
    if (found != std::string::npos) {
        const std::size_t before = text.rfind('\n', found);
        const std::size_t begin = before == std::string::npos ? 0 : before;
        text.erase(begin, text.find('\n', found) + 1 - begin);
    }
}

} // namespace

QuietStart::QuietStart()
    : m_fatal(g_log_set_always_fatal(static_cast<GLogLevelFlags>(G_LOG_LEVEL_ERROR))),
      m_standardError(stderr), m_said(fdopen(memfd_create("standard error", MFD_CLOEXEC), "w+")) {
    if (m_said != nullptr) {
        stderr = m_said;
    }
}

QuietStart::~QuietStart() {
    g_log_set_always_fatal(m_fatal);
    if (m_said != nullptr) {
        stderr = m_standardError;
        std::string said = contentOf(m_said);
        std::fclose(m_said);
        eraseLine(said, "gtk_disable_setlocale()");
        std::fputs(said.c_str(), stderr);
    }
}

} // namespace columnimport
