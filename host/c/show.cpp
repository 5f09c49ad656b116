// SPDX-License-Identifier: MIT

// A run with the dialog, compiled with the library that has the toolkit.

#include "host/c/Import.h"

#include "HostWindow.h"
#include "host/runImport.h"
#include "host/toolkit.h"

#include <utility>

namespace {

/// Marks an import while its dialog is open.
class OpenMark {
public:
    explicit OpenMark(columnimport_import &import) : m_import(import) { m_import.isOpen = true; }
    ~OpenMark() { m_import.isOpen = false; }
    OpenMark(const OpenMark &) = delete;
    OpenMark &operator=(const OpenMark &) = delete;

private:
    columnimport_import &m_import;
};

std::int32_t show(columnimport_import &import, columnimport::HostWindow window) {
    if (!columnimport::isToolkitSetUp()) {
        columnimport::setUpToolkit();
    }
    std::optional<columnimport::ImportResult> result;
    std::int32_t outcome = columnimport_failed;
    {
        const OpenMark open(import);
        outcome = columnimport::runImport(window, columnimport::completed(import.request), result);
    }
    import.result = std::move(result);
    import.message = outcome == columnimport_no_display     ? "There is no display."
                     : outcome == columnimport_already_open ? "Another dialog is open."
                     : outcome == columnimport_failed ? "The window closed with the dialog over it."
                                                      : "";
    return outcome;
}

} // namespace

std::int32_t columnimport_show(columnimport_import *import, void *window) {
    if (import != nullptr && import->isOpen) {
        import->message = "The dialog of this import is open.";
        return columnimport_already_open;
    }
    const std::int32_t outcome =
        columnimport::outcomeOfRun(import, [window](columnimport_import &filled) {
            return show(filled, static_cast<columnimport::HostWindow>(window));
        });
    if (import != nullptr && import->isUnwanted) {
        columnimport_free(import);
    }
    return outcome;
}
