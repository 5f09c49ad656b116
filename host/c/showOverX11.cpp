// SPDX-License-Identifier: MIT

// A run with the dialog over a window that only X11 knows. It is compiled with the library that has
// the toolkit.

#include "host/c/Import.h"

#include "host/X11Owner.h"

#include <memory>

using columnimport::require;
using columnimport::X11Owner;

std::int32_t columnimport_show_over_x11(columnimport_import *import, std::int64_t window) {
    if (import != nullptr && import->isOpen) {
        return columnimport_show(import, nullptr);
    }
    std::unique_ptr<X11Owner> owner;
    const std::int32_t outcome =
        columnimport::outcomeOfRun(import, [window, &owner](columnimport_import &filled) {
            constexpr const char *noWindow = "There is no X11 window of this number.";
            require(window > 0 && window <= UINT32_MAX, noWindow);
            if (const char *reason = X11Owner::whyUnavailable()) {
                filled.message = reason;
                return columnimport_no_display;
            }
            owner = std::make_unique<X11Owner>(static_cast<std::uint32_t>(window));
            require(owner->window() != nullptr, noWindow);
            return columnimport_ok;
        });
    return outcome == columnimport_ok ? columnimport_show(import, owner->window()) : outcome;
}
