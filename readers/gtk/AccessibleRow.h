// SPDX-License-Identifier: MIT

#pragma once

using AtkObject = struct _AtkObject; // NOLINT(bugprone-reserved-identifier): ATK's name for it

namespace columnimport {

class AccessibleRows;

/// Makes the accessible item of `row`, as a child of `list`. The caller owns it; a reader may keep
/// it longer.
AtkObject *makeAccessibleRow(AccessibleRows &rows, AtkObject *list, long row);

/// Reports to readers that still have `item` that its row is gone.
void retireAccessibleRow(AtkObject *item);

} // namespace columnimport
