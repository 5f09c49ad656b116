// SPDX-License-Identifier: MIT

// The functions that create and free an import, and the library's version.

#include "host/c/Import.h"

const char *columnimport_version() {
    return COLUMNIMPORT_VERSION;
}

void columnimport_version_numbers(std::int32_t *major, std::int32_t *minor, std::int32_t *patch) {
    constexpr std::int32_t numbers[] = {COLUMNIMPORT_VERSION_NUMBERS};
    std::int32_t *const targets[] = {major, minor, patch};
    for (std::size_t i = 0; i < 3; ++i) {
        if (targets[i] != nullptr) {
            *targets[i] = numbers[i];
        }
    }
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
