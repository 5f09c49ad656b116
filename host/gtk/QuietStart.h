// SPDX-License-Identifier: MIT

#pragma once

#include <cstdio>

#include <glib.h>

namespace columnimport {

/// While it lives, GTK's warning that `gtk_disable_setlocale` comes too late stays unsaid. The
/// toolkit calls that as it starts, and where a host has started GTK before, as nearly all do, it
/// changes nothing and is no fault of theirs.
///
/// GTK writes its warnings to the standard error stream, past all handlers that could be put back
/// afterwards. So this stream is another one meanwhile, and what else was written to it is written
/// again at the end. No warning is fatal meanwhile.
class QuietStart {
public:
    QuietStart();
    ~QuietStart();
    QuietStart(const QuietStart &) = delete;
    QuietStart &operator=(const QuietStart &) = delete;

private:
    GLogLevelFlags m_fatal;
    std::FILE *m_standardError;
    std::FILE *m_said; ///< null if there could be none; then all is said at once
};

} // namespace columnimport
