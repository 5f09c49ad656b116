// SPDX-License-Identifier: MIT

#include <columnimport.h>

int main(void) {
    const char *names[] = {"To", "BHID"};
    columnimport_import *import = columnimport_new();
    columnimport_add_column(import, "holename");
    columnimport_set_table(import, names, 0, 2);
    columnimport_propose(import);
    const int32_t position = columnimport_match_position(import, 0);
    columnimport_free(import);
    return position == 1 ? 0 : 1;
}
