// SPDX-License-Identifier: MIT

// Files that no one would want to import: the dialog opens, reports the problem, and can be left.

#include "tests/window/FileRun.h"

#include <clocale>

using namespace std::string_literals;

TEST(AnyFile, ReturnsNamesByteForByteInAndAfterAnyLocale) {
    const Names names = {"plong\xE9\x65", "plong\xC3\xA9\x65",      "\xF4\x80\x83\xA9",
                         "hole\0name"s,   "\x1b[31mhole\x07 name",  "Depth\xFF\xFE",
                         "\0\0\0"s,       std::string(1 << 20, 'h')};
    std::string content;
    for (const std::string &name : names) {
        content += name + ",";
    }
    FileRun run(content, Names(names.size(), "x"));
    run.confirmAfter([&names](Person &person) {
        for (int row = 0; row < static_cast<int>(names.size()); ++row) {
            person.drag(Person::fileRow(row), Person::matchRow(row));
        }
        onUserInterface([] { std::setlocale(LC_ALL, "C"); });
    });
    EXPECT_TRUE(run.matches == names);
    run.useSavedMatches = true;
    run.confirmAfter([](Person &) { onUserInterface([] { std::setlocale(LC_ALL, "C.UTF-8"); }); });
    EXPECT_TRUE(run.matches == names);
}

TEST(AnyFile, IsCutAtAnyByteAsDelimiter) {
    for (const char delimiter : {'\0', '\t', '\r', ' ', 'S', '"', '\x7F', '\x80', '\xFF'}) {
        FileRun run("holename"s + delimiter + delimiter + "depth\n", {"holename", "depth"});
        run.delimiter = delimiter;
        EXPECT_TRUE(run.show(pressOk));
        EXPECT_EQ(run.delimiter, delimiter);
        EXPECT_EQ(run.matches, (Names{"holename", "depth"})) << static_cast<int>(delimiter);
    }
}
