// Files that no one would want to import: the dialog stands, says what it can, and can be left.

#include "person/DialogRun.h"
#include "tests/ScratchFile.h"

#include <chrono>
#include <fstream>

#include <gtest/gtest.h>
#include <wxImportCSVDialog.h>

using namespace std::string_literals;

namespace {

class AnyFile : public testing::Test {
protected:
    AnyFile() { run.appColumns = {"holename", "depth"}; }

    /// Opens the dialog for a file and leaves it; returns the time until it stood.
    std::chrono::duration<double> timeToStand() {
        const auto start = std::chrono::steady_clock::now();
        std::chrono::duration<double> time{};
        EXPECT_FALSE(run.show([&](Person &person) {
            onUserInterface([] {});
            time = std::chrono::steady_clock::now() - start;
            pressCancel(person);
        }));
        return time;
    }

    DialogRun run;
};

} // namespace

TEST_F(AnyFile, WhateverItHoldsTheDialogStandsAndTheMatchesAreRight) {
    const std::string latin1 = "Profondeur;plong\xE9\x65;\xC0 droite\n1;2;3\n";
    const struct {
        std::string content;
        char delimiter;
        Names matches;
    } cases[] = {
        {"", ',', {"", ""}},
        {",,,,\n", ',', {"", ""}},
        {std::string(3, '\0') + "\n", ',', {"", ""}},
        {"\x1b[31mhole\x07 name\n", ',', {"\x1b[31mhole\x07 name", ""}},
        {"BHID\xE9,Depth\xFF\xFE\n", ',', {"", "Depth\xFF\xFE"}},
        {latin1, ';', {"", ""}},
        {"hole\0name,depth\n"s, ',', {"hole\0name"s, "depth"}},
    };
    for (const auto &row : cases) {
        const ScratchFile file(row.content);
        run.fileName = file.path();
        run.delimiter = row.delimiter;
        EXPECT_TRUE(run.show(pressOk));
        EXPECT_EQ(run.matches, row.matches) << row.content;
    }
}

TEST_F(AnyFile, NamesThatTheLocaleCannotDecodeComeBackAsTheyWere) {
    const ScratchFile file("plong\xE9\x65,Az\xFF,\xF4\x80\x83\xA9\n");
    run.fileName = file.path();
    EXPECT_TRUE(run.show([](Person &person) {
        person.drag(Person::fileRow(0), Person::matchRow(0));
        person.drag(Person::fileRow(2), Person::matchRow(1));
        pressOk(person);
    }));
    EXPECT_EQ(run.matches, (Names{"plong\xE9\x65", "\xF4\x80\x83\xA9"}));
    run.useSavedMatches = true;
    const Names saved = run.matches;
    EXPECT_TRUE(run.show(pressOk));
    EXPECT_EQ(run.matches, saved);
}

TEST_F(AnyFile, EveryByteServesAsADelimiter) {
    for (int byte = 0; byte < 256; byte += byte < 33 || byte > 126 ? 1 : 31) {
        const char delimiter = static_cast<char>(byte);
        const ScratchFile file(std::string("holename") + delimiter + delimiter + "depth\n");
        run.fileName = file.path();
        run.delimiter = delimiter;
        EXPECT_TRUE(run.show(pressOk));
        EXPECT_EQ(run.delimiter, delimiter);
        const bool isAtom = delimiter == '\n';
        EXPECT_EQ(run.matches, isAtom ? (Names{"holename", ""}) : (Names{"holename", "depth"}))
            << byte;
    }
}

TEST_F(AnyFile, OneThatShrinksOrVanishesMeanwhileIsReadAsItIs) {
    ScratchFile file("holename,depth\n");
    run.fileName = file.path();
    EXPECT_TRUE(run.show([&file](Person &person) {
        std::ofstream(file.path()).close();
        person.typeDelimiter(';');
        waitUntil("the emptied file has no columns", [] { return fileList().GetCount() == 0; });
        std::filesystem::remove(std::filesystem::u8path(file.path()));
        person.typeDelimiter(',');
        pressOk(person);
    }));
    EXPECT_EQ(run.matches, (Names{"", ""}));
}

TEST_F(AnyFile, OfOneLongLineItStandsInTime) {
    run.appColumns = Names(100, "holename");
    const std::string line(64 << 20, 'h');
    const ScratchFile file(line);
    run.fileName = file.path();
    EXPECT_LT(timeToStand().count(), 2.0);
    run.appColumns = {"depth"};
    EXPECT_TRUE(run.show([](Person &person) {
        person.drag(Person::fileRow(0), Person::matchRow(0));
        pressOk(person);
    }));
    EXPECT_TRUE(run.matches == Names{line});
}

TEST_F(AnyFile, OfAHundredThousandColumnsItStandsInTime) {
    std::string titles;
    for (int column = 0; column < 100000; ++column) {
        titles += "assay " + std::to_string(column) + ",";
    }
    const ScratchFile file(titles);
    run.fileName = file.path();
    run.appColumns = Names(100, "holename");
    EXPECT_LT(timeToStand().count(), 5.0);
}
