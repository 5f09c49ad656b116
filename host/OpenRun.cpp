// SPDX-License-Identifier: MIT

#include "host/OpenRun.h"

namespace columnimport {

namespace {

bool runIsOpen = false;

} // namespace

bool OpenRun::isOpen() {
    return runIsOpen;
}

OpenRun::OpenRun() {
    runIsOpen = true;
}

OpenRun::~OpenRun() {
    runIsOpen = false;
}

} // namespace columnimport
