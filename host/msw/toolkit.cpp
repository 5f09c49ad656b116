#include "host/toolkit.h"

#include "host/ApplicationObject.h"

#include <wx/app.h>
#include <wx/init.h>

namespace columnimport {

// The initializer is for the life of the process: the toolkit is never shut down.
void setUpToolkit() {
    renewApplicationObject();
    new wxInitializer;
}

bool isToolkitSetUp() {
    return wxApp::GetInstance() != nullptr;
}

} // namespace columnimport
