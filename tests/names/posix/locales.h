// SPDX-License-Identifier: MIT

#pragma once

#include <string>

/// The locales in which names are tested.
inline constexpr const char *locales[] = {"C", "C.UTF-8", "fr_FR", "tr_TR"};

inline bool isLatin1(const std::string &locale) {
    return locale == "fr_FR" || locale == "tr_TR"; // for the letters in the tests
}
