// SPDX-License-Identifier: MIT

#pragma once

#include "HostWindow.h"
#include "host/ImportRequest.h"

#include <cstdint>
#include <optional>

namespace columnimport {

/// One modal run, which both doors share: builds the dialog that `request` asks for, shows it over
/// the host's window at 100, 100, and leaves in `result` how it stood at its end, however it was
/// ended. Returns one of the outcomes of the C header. Where there was no dialog, or the host's
/// window took it along, there is no result.
std::int32_t runImport(HostWindow hostWindow, const ImportRequest &request,
                       std::optional<ImportResult> &result);

} // namespace columnimport
