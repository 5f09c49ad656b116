// SPDX-License-Identifier: MIT

#pragma once

class wxString;

namespace columnimport {

class ListCtrlSource;

/// What a screen reader says of a row: "gold: Au g/t", or "gold: Au g/t, a guess".
wxString rowText(const ListCtrlSource &list, long row);

} // namespace columnimport
