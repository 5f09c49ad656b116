// SPDX-License-Identifier: MIT

// A host on a machine without a display; run without one.

#include <columnimport.h>
#include <gtest/gtest.h>
#include <wxImportCSVDialogPeer.h>

TEST(WithoutADisplay, ShowWindowReturnsFalseAndKeepsTheOutputs) {
    bool useSaved = true;
    bool firstLineHeader = true;
    char delimiter = ';';
    std::vector<std::string> matches = {"BHID"};
    // The second peer must not take the first one's failure for success.
    for (int peers = 0; peers < 2; ++peers) {
        wxImportCSVDialogPeer peer;
        EXPECT_FALSE(peer.showWindow(nullptr, "Import", {"holename"}, "collar.csv", &useSaved,
                                     &matches, &delimiter, &firstLineHeader, 900, 900));
        EXPECT_FALSE(peer.showWindow(nullptr, "Import", {"holename"}, {"BHID"}, "table", &useSaved,
                                     &matches, 900, 900));
    }
    EXPECT_EQ(matches, std::vector<std::string>{"BHID"});
    EXPECT_EQ(delimiter, ';');
    EXPECT_TRUE(firstLineHeader && useSaved);
}

TEST(WithoutADisplay, TheCHeaderReportsNoDisplayAndProposes) {
    columnimport_import *import = columnimport_new();
    columnimport_add_column(import, "hole");
    columnimport_set_table(import, nullptr, nullptr, 0);
    EXPECT_EQ(columnimport_propose(import), columnimport_ok);
    EXPECT_EQ(columnimport_match_position(import, 0), columnimport_none);
    EXPECT_EQ(columnimport_show(import, nullptr), columnimport_no_display);
    EXPECT_EQ(columnimport_outcome(import), columnimport_no_display);
    EXPECT_EQ(columnimport_match_position(import, 0), columnimport_invalid) << "no result is left";
    columnimport_free(import);
}
