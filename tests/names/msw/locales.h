// SPDX-License-Identifier: MIT

#pragma once

#include <string>

/// The locales that names are looked at in. Here the toolkit asks the system for its code page,
/// which is nearly Latin-1, whatever the locale.
inline constexpr const char *locales[] = {"C", "Russian_Russia.1251", "Turkish_Turkey.1254"};

inline bool isLatin1(const std::string &) {
    return true;
}
