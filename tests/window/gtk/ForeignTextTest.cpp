// SPDX-License-Identifier: MIT

// Text that comes from another program.

#include "person/DialogRun.h"
#include "tests/ScratchFile.h"

#include <cstdio>

#include <glib.h>
#include <gtest/gtest.h>
#include <gtk/gtk.h>

namespace {

/// The other program, which offers these texts, one drag each.
class OtherProgram {
public:
    explicit OtherProgram(const Names &texts) {
        std::string command = OTHER_PROGRAM;
        for (const std::string &text : texts) {
            char *quoted = g_shell_quote(text.c_str());
            command.append(" ").append(quoted);
            g_free(quoted);
        }
        m_output = popen(command.c_str(), "r");
        waitFor("ready\n");
    }

    ~OtherProgram() { pclose(m_output); }

    OtherProgram(const OtherProgram &) = delete;
    OtherProgram &operator=(const OtherProgram &) = delete;

    /// Drops the next text at a place of the dialog.
    void dropAt(Person &person, wxPoint target) {
        const wxPoint window(1200, 180);
        person.moveTo(window);
        person.press();
        // Another program has a threshold for its drags.
        for (int step = 1; step <= 20; ++step) {
            person.moveTo(window - wxSize(step, 0));
        }
        person.hoverAt(target, "the text has come", [target] {
            const auto place = placeOfDrag();
            return place && place->y == target.y && place->x < target.x + 2;
        });
        person.release();
        waitFor("over\n");
    }

private:
    void waitFor(const std::string &wanted) {
        char said[10] = "";
        if (fgets(said, sizeof said, m_output) == nullptr || said != wanted) {
            throw GivenUp("the other program did not say " + wanted);
        }
    }

    FILE *m_output;
};

} // namespace

TEST(ForeignText, IsWrittenIntoARowAsGivenAndOnTheFileListClearsTheMarkedRows) {
    const ScratchFile file("HOLE,FROM\n");
    const Names texts = {"From elsewhere",         "Not used", "plong\xC3\xA9\x65 (\xC2\xB0)",
                         std::string(100000, 'x'), "1\n2\n3",  ""};
    DialogRun run;
    run.fileName = file.path();
    run.appColumns = {"a", "b", "c", "d", "e", "hole", "from"};
    EXPECT_TRUE(run.show([&texts](Person &person) {
        Names offered = texts;
        offered.insert(offered.end(), 2, "ignored");
        OtherProgram program(offered);
        for (int row = 0; row < static_cast<int>(texts.size()); ++row) {
            program.dropAt(person, Person::matchRow(row));
        }
        const Names before = matchTexts();
        program.dropAt(person, Person::fileRow(0));
        EXPECT_EQ(matchTexts(), before);
        person.click(Person::matchRow(6));
        poll("the last row is marked", [] { return markedRows() == std::vector<int>{6}; });
        program.dropAt(person, Person::belowFileRows());
        pressOk(person);
    }));
    Names expected = texts;
    expected[1] = "";
    expected[5] = "HOLE"; // the toolkit hands no empty text over
    expected.push_back("");
    EXPECT_TRUE(run.matches == expected);
}

TEST(ForeignText, IsPastedUnderEitherNameOfItsEncoding) {
    const ScratchFile file("HOLE\n");
    for (const char *name : {"UTF8_STRING", "text/plain;charset=utf-8"}) {
        DialogRun run;
        run.fileName = file.path();
        run.appColumns = {"a"};
        run.show([name](Person &person) {
            onUserInterface([name] {
                const std::string format = name;
                const GtkTargetEntry offered{const_cast<char *>(format.c_str()), 0, 0};
                gtk_clipboard_set_with_data(
                    gtk_clipboard_get(GDK_SELECTION_CLIPBOARD), &offered, 1,
                    [](GtkClipboard *, GtkSelectionData *data, unsigned, void *) {
                        gtk_selection_data_set(data, gtk_selection_data_get_target(data), 8,
                                               reinterpret_cast<const guchar *>("\xCE\xA9"), 2);
                    },
                    [](GtkClipboard *, void *) {}, nullptr);
            });
            person.click(Person::matchRow(0));
            person.keyDown(WXK_CONTROL);
            person.strike('v');
            person.keyUp(WXK_CONTROL);
            poll("the row reads the text", [] { return matchTexts() == Names{"\xCE\xA9"}; });
            pressOk(person);
        });
        EXPECT_EQ(run.matches, Names{"\xCE\xA9"}) << name;
    }
}
