// SPDX-License-Identifier: MIT

#pragma once

#include "HostWindow.h"
#include "host/ImportRequest.h"

#include <cstdint>
#include <optional>

namespace columnimport {

/// One modal run: builds the dialog for `request`, shows it over the host's window at 100, 100, and
/// returns an outcome of the C header. Sets `result` to what the dialog showed at its end, however
/// it ended. Leaves `result` alone if no dialog was shown, or if the dialog was destroyed with the
/// host's window (`columnimport_failed`).
std::int32_t runImport(HostWindow hostWindow, const ImportRequest &request,
                       std::optional<ImportResult> &result);

} // namespace columnimport
