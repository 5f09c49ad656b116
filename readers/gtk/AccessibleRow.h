// SPDX-License-Identifier: MIT

#pragma once

using AtkObject = struct _AtkObject; // NOLINT(bugprone-reserved-identifier): ATK's name for it

namespace columnimport {

class AccessibleRows;

/// Makes the item that speaks for `row` to a screen reader, as a child of `list`. The caller owns
/// it; a reader may keep it for longer.
AtkObject *makeAccessibleRow(AccessibleRows &rows, AtkObject *list, long row);

/// Tells whoever still has `item` that its row has gone.
void retireAccessibleRow(AtkObject *item);

} // namespace columnimport
