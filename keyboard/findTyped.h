// SPDX-License-Identifier: MIT

#pragma once

class wxArrayString;
class wxString;

namespace columnimport {

/// Which of `names` is meant by `typed`, in letters of either case: the next one that begins with
/// it, or else the next one that contains it; wxNOT_FOUND if none does. The search goes on from
/// `selected`, which is wxNOT_FOUND or the one found so far, and starts again at the end. One
/// character alone looks behind it, so that typed again it finds another name.
///
///     with {"AU", "CU", "AG", "ZN_AU"}:  "a" finds 0, then 2, then 0;  "ag" finds 2;  "n_" finds 3
int findTyped(const wxArrayString &names, const wxString &typed, int selected);

} // namespace columnimport
