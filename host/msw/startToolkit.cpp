// SPDX-License-Identifier: MIT

#include "host/toolkit.h"

#include <wx/init.h>
#include <wx/msw/private.h>

namespace columnimport {

bool hasDisplay() {
    return true;
}

// The toolkit is never shut down, so the library must stay loaded when a host frees it.
void startToolkit() {
    new wxInitializer;
    HMODULE library = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                       reinterpret_cast<const wchar_t *>(&startToolkit), &library);
}

} // namespace columnimport
