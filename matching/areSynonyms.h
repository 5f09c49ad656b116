// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace columnimport {

/// Whether one of two normalised names is a head word of the `synonymTable` and the other one of
/// its listed words. The order of the two makes no difference.
///
///     areSynonyms("bhid", "holename") == true
///     areSynonyms("bhid", "holeid")   == false, both are only listed
bool areSynonyms(std::string a, std::string b);

} // namespace columnimport
