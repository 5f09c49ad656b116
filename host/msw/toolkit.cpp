// SPDX-License-Identifier: MIT

#include "host/toolkit.h"

#include "host/ApplicationObject.h"

#include <wx/app.h>
#include <wx/init.h>
#include <wx/msw/private.h>

namespace columnimport {

// The initializer is for the life of the process: the toolkit is never shut down. So this library
// stays too when a host lets go of it.
void setUpToolkit() {
    renewApplicationObject();
    new wxInitializer;
    HMODULE library = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                       reinterpret_cast<const wchar_t *>(&setUpToolkit), &library);
}

bool isToolkitSetUp() {
    return wxApp::GetInstance() != nullptr;
}

} // namespace columnimport
