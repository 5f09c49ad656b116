// SPDX-License-Identifier: MIT

#pragma once

#include <string>

class wxMsgCatalog;
class wxString;

namespace columnimport {

// Each platform has a file of its own for these.

/// The process's languages for messages, most wanted first, with or without an encoding:
/// "de_AT.UTF-8:fr".
std::string messageLanguages();

/// Loads the catalogue `name` of `language`, which the caller owns; null if it is missing.
wxMsgCatalog *loadCatalogue(const wxString &name, const wxString &language);

} // namespace columnimport
