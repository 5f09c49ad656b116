// SPDX-License-Identifier: MIT

#pragma once

#include <string>

class wxMsgCatalog;
class wxString;

namespace columnimport {

// Each platform has a file of its own for these.

/// The languages that the process has for messages, the most wanted one first, with or without an
/// encoding: "de_AT.UTF-8:fr".
std::string messageLanguages();

/// The catalogue `name` of `language`, which the caller owns, or null if it is not where it should
/// be.
wxMsgCatalog *loadCatalogue(const wxString &name, const wxString &language);

} // namespace columnimport
