// SPDX-License-Identifier: MIT

#pragma once

#include "person/DialogRun.h"
#include "tests/ScratchFile.h"

#include <gtest/gtest.h>

/// A run for a file of its own.
struct FileRun : DialogRun {
    FileRun(const std::string &content, const Names &columns) : file(content) {
        fileName = file.path();
        appColumns = columns;
    }

    /// Expects a run that ends with OK after these steps.
    void confirmAfter(const Steps &steps) {
        EXPECT_TRUE(show([&steps](Person &person) {
            steps(person);
            pressOk(person);
        }));
    }

    /// The same with Cancel.
    void cancelAfter(const Steps &steps) {
        EXPECT_FALSE(show([&steps](Person &person) {
            steps(person);
            pressCancel(person);
        }));
    }

    ScratchFile file;
};
