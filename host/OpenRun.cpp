// SPDX-License-Identifier: MIT

#include "host/OpenRun.h"

#include "host/toolkit.h"

namespace columnimport {

namespace {

bool runIsOpen = false;

} // namespace

bool OpenRun::isPossible() {
    return isToolkitSetUp() && !runIsOpen;
}

OpenRun::OpenRun() {
    runIsOpen = true;
}

OpenRun::~OpenRun() {
    runIsOpen = false;
}

} // namespace columnimport
