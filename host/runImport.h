// SPDX-License-Identifier: MIT

#pragma once

#include "HostWindow.h"
#include "host/ImportRequest.h"

#include <cstdint>
#include <optional>

namespace columnimport {

/// One modal run: builds the dialog that `request` asks for, shows it over the host's window at
/// 100, 100, and sets `result` to what it showed at its end, however it ended. Returns an outcome
/// of the C header. There is no result without a dialog, or if the dialog was destroyed with the
/// host's window (`columnimport_failed`).
std::int32_t runImport(HostWindow hostWindow, const ImportRequest &request,
                       std::optional<ImportResult> &result);

} // namespace columnimport
