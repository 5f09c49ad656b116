// SPDX-License-Identifier: MIT

// The library's version, and how an import begins and ends.

#include "host/c/Import.h"

namespace {

void write(std::int32_t *target, std::int32_t number) {
    if (target != nullptr) {
        *target = number;
    }
}

} // namespace

const char *columnimport_version() {
    return COLUMNIMPORT_VERSION;
}

void columnimport_version_numbers(std::int32_t *major, std::int32_t *minor, std::int32_t *patch) {
    constexpr std::int32_t numbers[] = {COLUMNIMPORT_VERSION_NUMBERS};
    write(major, numbers[0]);
    write(minor, numbers[1]);
    write(patch, numbers[2]);
}

columnimport_import *columnimport_new() {
    return new (std::nothrow) columnimport_import;
}

void columnimport_free(columnimport_import *import) {
    if (import != nullptr && import->isOpen) {
        import->isUnwanted = true;
    } else {
        delete import;
    }
}

const char *columnimport_message(columnimport_import *import) {
    return import == nullptr ? "There is no import: the pointer is null." : import->message;
}
