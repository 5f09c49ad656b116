// SPDX-License-Identifier: MIT

// The dialog for a person who hears it: another program does everything through the screen readers'
// library.

#include "tests/window/FileRun.h"

#include <cstdlib>

TEST(ScreenReader, ReadsAndOperatesTheDialogWithoutAPointerOrKeys) {
    FileRun run("HOLE,AU,CU,COPER\n", {"hole", "gold", "copper"});
    run.appColumns.resize(100);
    run.useSavedMatches = true;
    run.matches = {"HOLE", "", ""};
    run.matches.resize(100, "HOLE");
    EXPECT_TRUE(run.show([](Person &) { EXPECT_EQ(std::system(SCREEN_READER), 0); }));
    run.matches.resize(3);
    EXPECT_EQ(run.matches, (Names{"HOLE", "", "COPER"}));
}
