// SPDX-License-Identifier: MIT

#pragma once

class wxString;

namespace columnimport {

class ListCtrlSource;

/// The name of a row for a screen reader: "gold: Au g/t", or "gold: Au g/t, a guess".
wxString rowText(const ListCtrlSource &list, long row);

} // namespace columnimport
