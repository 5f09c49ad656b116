/* SPDX-License-Identifier: MIT */

#include <columnimport.h>

#include <stdio.h>

#include <windows.h>

int wmain(int argc, wchar_t **argv) {
    HWND window = CreateWindowW(L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50, 800,
                                600, NULL, NULL, NULL, NULL);
    char path[4 * MAX_PATH] = "";
    if (argc > 1) {
        WideCharToMultiByte(CP_UTF8, 0, argv[1], -1, path, sizeof path, NULL, NULL);
    }

    const char *const columns[] = {"holename", "easting", "northing", "elevation"};
    columnimport_import *import = columnimport_new();
    columnimport_set_title(import, "Import collars");
    columnimport_set_file(import, path);
    for (int32_t i = 0; i < 4; ++i) {
        columnimport_add_column(import, columns[i]);
    }
    columnimport_add_alternative(import, 3, "RL");
    columnimport_set_required(import, 0, 1);

    const int32_t outcome = columnimport_show(import, window);
    for (int32_t i = 0; outcome <= columnimport_cancelled && i < 4; ++i) {
        const char *name = columnimport_match_name(import, i, NULL);
        printf("%s <- %s\n", columns[i], name != NULL ? name : "");
    }
    if (outcome > columnimport_cancelled) {
        fprintf(stderr, "%s\n", columnimport_message(import));
    }
    columnimport_free(import);
    return outcome;
}
