// SPDX-License-Identifier: MIT

// What the dialog says of a file that gives no columns.

#include "person/DialogRun.h"
#include "tests/ScratchFile.h"

#include <gtest/gtest.h>

namespace {

/// What is said beside the options; empty if nothing is.
std::string sentence() {
    return read([] {
        const wxWindow &place = control(11);
        return place.IsShown() ? place.GetLabel().utf8_string() : std::string();
    });
}

} // namespace

TEST(Sentence, TellsWhatIsWrongWithTheFileUntilItIsRight) {
    const std::string undelimited = "The first line of the file does not contain this delimiter.";
    const ScratchFile blank(" \t\na,b\n");
    const ScratchFile empty("");
    const ScratchFile one("BHID;X\na,b\n");
    const ScratchFile quoted("\"a,b\"");
    const struct {
        std::string path, atFirst, withSemicolon;
    } cases[] = {
        {one.path(), undelimited, ""},
        {quoted.path(), "", undelimited},
        {blank.path(), "The first line of the file is blank.",
         "The first line of the file is blank."},
        {empty.path(), "The file is empty.", "The file is empty."},
    };
    for (const auto &[path, atFirst, withSemicolon] : cases) {
        DialogRun run;
        run.fileName = path;
        EXPECT_TRUE(run.show([&atFirst = atFirst, &withSemicolon = withSemicolon](Person &person) {
            EXPECT_EQ(sentence(), atFirst);
            person.typeDelimiter(';');
            poll("it says: " + withSemicolon, [&] { return sentence() == withSemicolon; });
            pressOk(person);
        }));
    }
}

TEST(Sentence, GivesTheSystemsReasonWhyTheFileCannotBeRead) {
    DialogRun run;
    run.fileName = "/nowhere/collar.csv";
    EXPECT_TRUE(run.show([](Person &person) {
        EXPECT_EQ(sentence(), "The file can't be read: No such file or directory");
        pressOk(person);
    }));
}
