#include "host/ModalRun.h"

#include "dialogs/wxImportCSVDialog.h"
#include "host/NativeHost.h"

#include <algorithm>

#include <wx/window.h>

namespace columnimport {

namespace {

bool runIsOpen = false;

// A window can't be smaller than its own frame, nor larger than a window system counts.
constexpr std::int32_t leastSize = 100;
constexpr std::int32_t greatestSize = 32000;

} // namespace

HostStandIn::HostStandIn(HostWindow hostWindow) {
    if (const HostWindow owner = ownerOf(hostWindow)) {
        m_window = std::make_unique<wxWindow>();
        attach(*m_window, owner);
        wxTopLevelWindows.Append(m_window.get());
    }
}

// Left in the list of top-level windows, an object without a handle would be taken for the owner of
// the next dialog; its destructor takes it out.
HostStandIn::~HostStandIn() {
    release();
}

void HostStandIn::release() {
    if (m_window) {
        detach(*m_window);
    }
}

bool OpenRun::isPossible() {
    return isToolkitSetUp() && !runIsOpen;
}

OpenRun::OpenRun() {
    runIsOpen = true;
}

OpenRun::~OpenRun() {
    runIsOpen = false;
}

bool runDialog(wxImportCSVDialog &dialog, std::int32_t width, std::int32_t height) {
    dialog.create();
    // The fitted size is only a default: the host may ask for less.
    dialog.SetMinSize(wxDefaultSize);
    dialog.SetSize(std::clamp(width, leastSize, greatestSize),
                   std::clamp(height, leastSize, greatestSize));
    dialog.SetPosition(wxPoint(100, 100));
    return showModal(dialog) == wxID_OK;
}

} // namespace columnimport
