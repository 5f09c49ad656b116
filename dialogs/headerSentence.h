// SPDX-License-Identifier: MIT

#pragma once

class wxString;

namespace columnimport {

struct Header;

/// What a person is told of a file whose first line gives no columns, or one alone; empty if there
/// is nothing to tell.
wxString headerSentence(const Header &header);

} // namespace columnimport
