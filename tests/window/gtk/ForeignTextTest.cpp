// SPDX-License-Identifier: MIT

// Text that comes from another program.

#include "tests/window/FileRun.h"

#include <chrono>
#include <cstdio>

#include <glib.h>
#include <gtk/gtk.h>
#include <wxImportCSVDialog.h>

namespace {

/// Another program, which offers these texts, one per drag.
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
        person.moveTo(window);
        person.press();
        // The other program has a threshold for its drags.
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

    /// A place in its window, in coordinates of the dialog's client area.
    const wxPoint window = wxPoint(1200, 180);

    void waitFor(const std::string &wanted) {
        char said[16] = "";
        if (fgets(said, sizeof said, m_output) == nullptr || said != wanted) {
            throw GivenUp("the other program did not say " + wanted);
        }
    }

private:
    FILE *m_output;
};

} // namespace

TEST(ForeignText, IsWrittenIntoARowAsGivenAndClearsMarkedRowsOnTheFileList) {
    FileRun run("HOLE,FROM\n", {"a", "b", "c", "d", "e", "f", "hole", "from"});
    const std::string large(100000, 'x');
    const Names texts = {
        "From elsewhere", "Not used", "plong\xC3\xA9\x65 (\xC2\xB0)", large, "1\n2\n3",
        " plong\xE9",     ""};
    Names offered = texts;
    offered.insert(offered.end(), 2, "ignored");
    OtherProgram program(offered);
    run.confirmAfter([&](Person &person) {
        for (int row = 0; row < static_cast<int>(texts.size()); ++row) {
            program.dropAt(person, Person::matchRow(row));
        }
        const Names before = matchTexts();
        EXPECT_EQ(before[4], "1\xC2\xB6\x32\xC2\xB6\x33");
        program.dropAt(person, Person::fileRow(0));
        EXPECT_EQ(matchTexts(), before);
        person.click(Person::matchRow(7));
        poll("the last row is marked", [] { return markedRows() == std::vector<int>{7}; });
        program.dropAt(person, Person::belowFileRows());
    });
    Names expected = texts;
    expected[1] = "";
    expected[5] = " plong\xC3\xA9";
    expected[6] = "HOLE"; // the toolkit drops empty texts
    expected.push_back("");
    EXPECT_TRUE(run.matches == expected);
}

TEST(ForeignText, IsPastedAsUtf8IfOfferedAndElseDecodedLikeAName) {
    const struct {
        std::vector<std::string> offered;
        std::string bytes;
    } cases[] = {{{"UTF8_STRING"}, "\xCE\xA9"},
                 {{"text/plain", "text/plain;charset=utf-8"}, "\xCE\xA9"},
                 {{"STRING", "UTF8_STRING"}, "\xCE\xA9"},
                 {{"STRING"}, "\xC3\xA9"},
                 {{"text/plain"}, "\xC3\xA9"}};
    for (const auto &[offered, bytes] : cases) {
        FileRun run("HOLE\n", {"a"});
        run.confirmAfter([&names = offered](Person &person) {
            onUserInterface([&names] {
                std::vector<GtkTargetEntry> formats;
                for (const std::string &name : names) {
                    const bool isUtf8 = name.find('8') != std::string::npos;
                    formats.push_back({const_cast<char *>(name.c_str()), 0, isUtf8 ? 2U : 1U});
                }
                gtk_clipboard_set_with_data(
                    gtk_clipboard_get(GDK_SELECTION_CLIPBOARD), formats.data(),
                    static_cast<unsigned>(formats.size()),
                    [](GtkClipboard *, GtkSelectionData *data, unsigned length, void *) {
                        gtk_selection_data_set(
                            data, gtk_selection_data_get_target(data), 8,
                            reinterpret_cast<const guchar *>(length == 2 ? "\xCE\xA9" : "\xE9"),
                            static_cast<int>(length));
                    },
                    [](GtkClipboard *, void *) {}, nullptr);
            });
            person.click(Person::matchRow(0));
            person.strikeWith(WXK_CONTROL, 'v');
        });
        EXPECT_EQ(run.matches, Names{bytes}) << offered.front();
    }
}

TEST(ForeignText, IsPastedBeforeAllLaterChanges) {
    const struct {
        const char *what;
        Steps later;
        Names result;
    } cases[] = {
        {"undo", [](Person &person) { person.strikeWith(WXK_CONTROL, 'z'); }, {"HOLE", "FROM"}},
        {"a drop",
         [](Person &person) { person.drag(Person::fileRow(1), Person::matchRow(0)); },
         {"FROM", "FROM"}},
        {"a double click",
         [](Person &person) {
             person.click(Person::fileRow(1));
             person.click(Person::fileRow(1));
         },
         {"FROM", "FROM"}},
        {"OK", [](Person &) {}, {"slow", "FROM"}},
        {"a refresh",
         [](Person &person) {
             person.click(wxImportCSVDialog::CHECK_HEADER);
             poll("the rows are new", [] { return matchTexts() == Names{"Column1", "Column2"}; });
             // The program never answers this second request.
             person.click(Person::matchRow(1));
             person.strikeWith(WXK_CONTROL, 'v');
             poll("the wait is over", [&person] {
                 person.strike(WXK_DELETE);
                 return matchTexts().back() == "Not used";
             });
         },
         {"Column1", ""}},
    };
    for (const auto &[what, later, result] : cases) {
        FileRun run("HOLE,FROM\n", {"hole", "to"});
        OtherProgram program({"unused"});
        EXPECT_TRUE(run.show([&program, &later = later](Person &person) {
            person.drag(Person::fileRow(1), Person::matchRow(1));
            person.drag(Person::fileRow(0), Person::matchRow(0));
            person.click(program.window);
            program.waitFor("taken\n");
            waitUntil("the dialog has the keys again", [] { return openDialog().IsActive(); });
            person.click(Person::matchRow(0));
            person.strikeWith(WXK_CONTROL, 'v');
            later(person);
            person.strike(WXK_RETURN);
        })) << what;
        EXPECT_EQ(run.matches, result) << what;
    }
}

TEST(ForeignText, IsNotWaitedForIfTheOtherProgramHangs) {
    FileRun run("HOLE,FROM\n", {"hole", "from"});
    OtherProgram program({"unused"});
    EXPECT_FALSE(run.show([&program](Person &person) {
        person.moveTo(Person::fileRow(0));
        person.press();
        person.hoverAt(Person::fileRow(1), "the drag begins", isDragRunning);
        person.hoverAt(Person::matchRow(0), "the drag is seen", [] { return !!placeOfDrag(); });
        for (int step = 0; step < 20; ++step) {
            person.moveTo(program.window + wxSize(step % 2, 0));
        }
        program.waitFor("accepted\n");
        person.release();
        program.waitFor("dropped\n");
        waitUntil("the drag ends", [] { return !isDragRunning(); });
        person.click(program.window);
        program.waitFor("taken\n");
        waitUntil("the dialog has the keys again", [] { return openDialog().IsActive(); });
        person.click(Person::matchRow(0));
        if (placesWindows()) { // elsewhere the program hangs at once
            person.strikeWith(WXK_CONTROL, 'v');
            person.strike(WXK_DELETE);
            poll("the key waits for the text and no longer",
                 [] { return matchTexts().front() == "Not used"; });
        }
        const auto began = std::chrono::steady_clock::now();
        person.strikeWith(WXK_CONTROL, 'v');
        person.strike(WXK_DOWN);
        poll("the dialog goes on", [] { return hoverRows() == std::vector<int>{1}; });
        poll("the wait is over", [&person] {
            person.strike(WXK_DELETE);
            return matchTexts().back() == "Not used";
        });
        EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(10));
        person.strikeWith(WXK_CONTROL, 'v');
        person.strike(WXK_ESCAPE);
    }));
}
