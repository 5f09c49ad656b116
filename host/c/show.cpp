// SPDX-License-Identifier: MIT

// Runs with the dialog. They are compiled with the library that has the toolkit.

#include "host/c/Import.h"

#include "host/X11Owner.h"
#include "host/runImport.h"
#include "host/toolkit.h"

#include <wx/scopeguard.h>

using columnimport::require;

namespace {

/// Shows the dialog of `import` over `window`.
std::int32_t show(columnimport_import &import, columnimport::HostWindow window) {
    if (!columnimport::isToolkitSetUp()) {
        columnimport::setUpToolkit();
    }
    import.isOpen = true;
    wxON_BLOCK_EXIT_SET(import.isOpen, false);
    const std::int32_t outcome =
        columnimport::runImport(window, columnimport::completed(import.request), import.result);
    import.message = outcome == columnimport_no_display     ? "There is no display."
                     : outcome == columnimport_already_open ? "Another dialog is open."
                     : outcome == columnimport_failed ? "The window closed with the dialog over it."
                                                      : "";
    return outcome;
}

/// The outcome of `run`, which calls `show`. The host may free the import while its dialog is open.
template <typename Run>
std::int32_t outcomeOfShow(columnimport_import *import, const Run &run) noexcept {
    if (import != nullptr && import->isOpen) {
        import->message = "The dialog of this import is open.";
        return columnimport_already_open;
    }
    const std::int32_t outcome = columnimport::outcomeOfRun(import, run);
    if (import != nullptr && import->isUnwanted) {
        columnimport_free(import);
    }
    return outcome;
}

} // namespace

std::int32_t columnimport_show(columnimport_import *import, void *window) {
    return outcomeOfShow(import, [window](columnimport_import &filled) {
        return show(filled, static_cast<columnimport::HostWindow>(window));
    });
}

std::int32_t columnimport_show_over_x11(columnimport_import *import, std::int64_t window) {
    return outcomeOfShow(import, [window](columnimport_import &filled) -> std::int32_t {
        constexpr const char *noWindow = "There is no X11 window of this number.";
        require(window > 0 && window <= UINT32_MAX, noWindow);
        if (const char *reason = columnimport::whyNoX11Owner()) {
            filled.message = reason;
            return columnimport_no_display;
        }
        const columnimport::X11Owner owner =
            columnimport::x11Owner(static_cast<std::uint32_t>(window));
        require(owner != nullptr, noWindow);
        return show(filled, owner.get());
    });
}
