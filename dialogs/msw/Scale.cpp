// SPDX-License-Identifier: MIT

#include "dialogs/Scale.h"

#include <wx/window.h>

namespace columnimport {

// One where the host has the system enlarge its windows for it.
Scale::Scale(const wxWindow &window) : m_ratio(window.GetDPIScaleFactor()) {}

} // namespace columnimport
