// SPDX-License-Identifier: MIT

#pragma once

#include <string>

/// The locales in which names are tested. On Windows the toolkit uses the system's code page, which
/// is nearly Latin-1, in any locale.
inline constexpr const char *locales[] = {"C", "Russian_Russia.1251", "Turkish_Turkey.1254"};

inline bool isLatin1(const std::string &) {
    return true;
}
