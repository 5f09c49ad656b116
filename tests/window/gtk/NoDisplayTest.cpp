// SPDX-License-Identifier: MIT

// A host on a machine without a display: run without one.

#include <gtest/gtest.h>
#include <wxImportCSVDialogPeer.h>

TEST(WithoutADisplay, NothingIsShownAndTheHostKeepsWhatItHad) {
    bool useSaved = true;
    bool firstLineHeader = true;
    char delimiter = ';';
    std::vector<std::string> matches = {"BHID"};
    // The second peer must not take the first one's failure for a set-up.
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
