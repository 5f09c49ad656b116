// SPDX-License-Identifier: MIT

#pragma once

#include "HostWindow.h"
#include "host/ImportRequest.h"

#include <cstdint>
#include <optional>

namespace columnimport {

/// One modal run: builds the dialog that `request` asks for, shows it over the host's window at
/// 100, 100, and leaves in `result` what it showed at its end, however it was ended. Returns an
/// outcome of the C header. There is no result where there was no dialog, or where the host's
/// window took the dialog along (`columnimport_failed`).
std::int32_t runImport(HostWindow hostWindow, const ImportRequest &request,
                       std::optional<ImportResult> &result);

} // namespace columnimport
