// SPDX-License-Identifier: MIT

#include "delimited/readHeader.h"
#include "tests/ScratchFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace columnimport;

TEST(FileHead, IsEmptyForAPipeWithoutWaiting) {
    const ScratchFile pipe("");
    unlink(pipe.path().c_str());
    ASSERT_EQ(mkfifo(pipe.path().c_str(), 0600), 0);
    EXPECT_EQ(readHeader(pipe.path(), ',').columns, std::vector<std::string>());
    EXPECT_EQ(readPreview(pipe.path()), std::string(10, '\n'));
}
