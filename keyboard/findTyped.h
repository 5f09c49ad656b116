// SPDX-License-Identifier: MIT

#pragma once

class wxArrayString;
class wxString;

namespace columnimport {

/// The position of the next of `names` that begins with `typed`, or else that contains it;
/// wxNOT_FOUND if none does. Case does not matter. The search starts at `selected`, which may be
/// wxNOT_FOUND, and wraps at the end. A single character starts behind it, so that typing it again
/// finds another name.
///
///     with {"AU", "CU", "AG", "ZN_AU"}:  "a" finds 0, then 2, then 0;  "ag" finds 2;  "n_" finds 3
int findTyped(const wxArrayString &names, const wxString &typed, int selected);

} // namespace columnimport
