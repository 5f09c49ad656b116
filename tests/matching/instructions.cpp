// SPDX-License-Identifier: MIT

// One proposal for a fixed case, for the count of its instructions.

#include "bench/columnNames.h"
#include "matching/matchColumns.h"

int main() {
    using namespace columnimport;
    return matchColumns(bench::columnNames(200, 1), bench::columnNames(1000, 2)).size() != 200;
}
