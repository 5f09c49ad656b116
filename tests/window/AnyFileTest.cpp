// SPDX-License-Identifier: MIT

// Files that no one would want to import: the dialog opens, reports the problem, and can be left.

#include "person/DialogRun.h"
#include "tests/ScratchFile.h"

#include <clocale>

#include <gtest/gtest.h>

using namespace std::string_literals;

namespace {

class AnyFile : public testing::Test {
protected:
    AnyFile() { run.appColumns = {"holename", "depth"}; }

    /// Runs the dialog for a file with this content.
    void show(const std::string &content, const Steps &steps) {
        const ScratchFile file(content);
        run.fileName = file.path();
        EXPECT_TRUE(run.show(steps)) << content;
    }

    DialogRun run;
};

} // namespace

TEST_F(AnyFile, OpensWithTheRightMatchesForAnyContent) {
    const struct {
        std::string content;
        Names matches;
    } cases[] = {
        {"\0\0\0\n"s, {"", ""}},
        {"\x1b[31mhole\x07 name\n", {"\x1b[31mhole\x07 name", ""}},
        {"BHID\xE9,Depth\xFF\xFE\n", {"", "Depth\xFF\xFE"}},
        {"hole\0name,depth\n"s, {"hole\0name"s, "depth"}},
    };
    for (const auto &row : cases) {
        show(row.content, pressOk);
        EXPECT_EQ(run.matches, row.matches) << row.content;
    }
}

TEST_F(AnyFile, ReturnsNamesByteForByteInAndAfterAnyLocale) {
    const Names names = {"plong\xE9\x65", "plong\xC3\xA9\x65", "\xF4\x80\x83\xA9", "hole\0name"s,
                         std::string(1 << 20, 'h')};
    std::string content;
    for (const std::string &name : names) {
        content += name + ",";
    }
    const ScratchFile file(content);
    run.fileName = file.path();
    run.appColumns = Names(names.size(), "x");
    EXPECT_TRUE(run.show([&names](Person &person) {
        for (int row = 0; row < static_cast<int>(names.size()); ++row) {
            person.drag(Person::fileRow(row), Person::matchRow(row));
        }
        onUserInterface([] { std::setlocale(LC_ALL, "C"); });
        pressOk(person);
    }));
    EXPECT_TRUE(run.matches == names);
    run.useSavedMatches = true;
    EXPECT_TRUE(run.show([](Person &person) {
        onUserInterface([] { std::setlocale(LC_ALL, "C.UTF-8"); });
        pressOk(person);
    }));
    EXPECT_TRUE(run.matches == names);
}

TEST_F(AnyFile, IsCutAtAnyByteAsDelimiter) {
    for (const char delimiter : {'\0', '\t', '\r', ' ', 'S', '"', '\x7F', '\x80', '\xFF'}) {
        run.delimiter = delimiter;
        show("holename"s + delimiter + delimiter + "depth\n", pressOk);
        EXPECT_EQ(run.delimiter, delimiter);
        EXPECT_EQ(run.matches, (Names{"holename", "depth"})) << static_cast<int>(delimiter);
    }
}
