/* SPDX-License-Identifier: MIT */

/* A host as a Windows compiler makes it, without a runtime library or a header of either. It makes
 * a proposal, shows the dialog for the same file, and ends with what the dialog ended with. */

#include "columnimport.h"

typedef void *Handle;
__declspec(dllimport) Handle __stdcall GetStdHandle(uint32_t which);
__declspec(dllimport) int32_t __stdcall WriteFile(Handle file, const void *bytes, uint32_t count,
                                                  uint32_t *written, void *overlapped);
__declspec(dllimport) void __stdcall ExitProcess(uint32_t code);

static void say(const char *bytes, int64_t length) {
    uint32_t written;
    WriteFile(GetStdHandle((uint32_t)-11), bytes, (uint32_t)length, &written, 0);
}

static void sayMatches(columnimport_import *import) {
    for (int32_t i = 0; i < columnimport_column_count(import); ++i) {
        int64_t length = 0;
        const char *name = columnimport_match_name(import, i, &length);
        const char position = (char)('0' + columnimport_match_position(import, i));
        say(name, length);
        say(&position, 1);
        say("\n", 1);
    }
}

void start(void) {
    columnimport_import *import = columnimport_new();
    columnimport_set_title(import, "Import collars");
    columnimport_set_file(import, "examples/data/collars.csv");
    columnimport_add_column(import, "holename");
    columnimport_add_column(import, "elevation");
    if (columnimport_propose(import) == columnimport_ok) {
        sayMatches(import);
    }
    const int32_t outcome = columnimport_show(import, 0);
    sayMatches(import);
    columnimport_free(import);
    ExitProcess((uint32_t)outcome);
}
