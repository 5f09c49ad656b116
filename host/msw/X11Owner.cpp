// SPDX-License-Identifier: MIT

#include "host/X11Owner.h"

namespace columnimport {

struct X11Owner::Native {};

const char *X11Owner::whyUnavailable() {
    return "There is no X11 display.";
}

X11Owner::X11Owner(std::uint32_t) {}

X11Owner::~X11Owner() = default;

HostWindow X11Owner::window() const {
    return nullptr;
}

} // namespace columnimport
