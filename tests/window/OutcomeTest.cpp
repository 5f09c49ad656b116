// SPDX-License-Identifier: MIT

// The results of a run, however it ends, and the dialog's place meanwhile.

#include "person/DialogRun.h"
#include "tests/ScratchFile.h"

#include <atomic>

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/log.h>
#include <wxImportCSVDialog.h>

namespace {

class Outcome : public testing::Test {
protected:
    Outcome() : file("BHID,Azimut;Dip\n") {
        run.appColumns = {"holename", "dip"};
        run.fileName = file.path();
    }

    ScratchFile file;
    DialogRun run;
};

} // namespace

TEST_F(Outcome, IsWrittenHoweverTheDialogEndsAndTrueOnlyForOk) {
    const struct {
        Steps leave;
        bool result;
    } ways[] = {{pressOk, true},
                {pressCancel, false},
                {[](Person &) { onUserInterface(pressCloseBox); }, false}};
    for (const auto &way : ways) {
        run.matches = {"from before"};
        run.delimiter = ',';
        run.firstLineHeader = true;
        EXPECT_EQ(run.show([&way](Person &person) {
            person.typeDelimiter(';');
            person.click(wxImportCSVDialog::CHECK_HEADER);
            poll("positions are shown", [] { return matchTexts() == Names{"Column1", "Column2"}; });
            way.leave(person);
        }),
                  way.result);
        EXPECT_EQ(run.matches, (Names{"Column1", "Column2"}));
        EXPECT_EQ(run.delimiter, ';');
        EXPECT_FALSE(run.firstLineHeader);
        EXPECT_FALSE(run.useSavedMatches);
    }
}

TEST_F(Outcome, IsEmptyForAFileColumnCalledNotUsed) {
    const ScratchFile named("Not used\n");
    run.fileName = named.path();
    run.useSavedMatches = true;
    run.matches = {"Not used", ""};
    run.show(pressOk);
    EXPECT_EQ(run.matches, (Names{"", ""}));
}

TEST_F(Outcome, IsEmptyWithoutApplicationColumns) {
    run.appColumns.clear();
    EXPECT_TRUE(run.show([](Person &person) {
        EXPECT_EQ(fileTexts(), (Names{"BHID", "Azimut;Dip"}));
        pressOk(person);
    }));
    EXPECT_EQ(run.matches, Names());
}

TEST_F(Outcome, TheFrameHasTheRequestedPlaceAndSizeInEveryRun) {
    for (const wxSize size : {wxSize(900, 900), wxSize(1000, 950), wxSize(500, 400)}) {
        run.width = size.x;
        run.height = size.y;
        const auto expectFrame = [&size](Person &person) {
            waitUntil("the frame has its size", [&] { return frameOfDialog().GetSize() == size; });
            if (placesWindows()) {
                EXPECT_EQ(read(frameOfDialog).GetPosition(), wxPoint(100, 100));
            }
            person.strike(WXK_ESCAPE);
        };
        run.show(expectFrame);
        run.showTable({"BHID"}, expectFrame);
    }
    run.width = -1;
    run.height = -1;
    run.show([](Person &person) {
        waitUntil("the frame fits the controls", [] {
            const wxSize size = frameOfDialog().GetSize();
            return size.x > 800 && size.y > 750 && size.y < 900;
        });
        person.strike(WXK_ESCAPE);
    });
}

TEST_F(Outcome, ASecondRunIsRefusedWhileOneIsOpenAndItsPeerReplacesNothing) {
    DialogRun second = run;
    second.matches = {"kept"};
    EXPECT_TRUE(run.show([&second](Person &person) {
        onUserInterface([&second] {
            const auto *application = wxApp::GetInstance();
            EXPECT_FALSE(wxImportCSVDialogPeer().showWindow(
                nullptr, "Second", second.appColumns, second.fileName, &second.useSavedMatches,
                &second.matches, &second.delimiter, &second.firstLineHeader, 900, 900));
            EXPECT_EQ(wxApp::GetInstance(), application);
        });
        pressOk(person);
    }));
    EXPECT_EQ(second.matches, Names{"kept"});
}

TEST_F(Outcome, ShowsTheUserNoMessageOfTheToolkit) {
    EXPECT_TRUE(run.show([](Person &person) {
        std::atomic<bool> hasGoneOn = false;
        onUserInterface([&hasGoneOn] {
            EXPECT_FALSE(wxLog::IsEnabled());
            openDialog().CallAfter([&hasGoneOn, handler = wxTheAssertHandler] {
                wxSetDefaultAssertHandler();
                wxFAIL;
                wxSetAssertHandler(handler);
                hasGoneOn = true;
            });
        });
        poll("no box is open", [&hasGoneOn] { return hasGoneOn.load(); });
        pressOk(person);
    }));
    EXPECT_TRUE(wxLog::IsEnabled());
}

TEST_F(Outcome, PassesAnExceptionToTheHost) {
    struct Mishap {};
    EXPECT_THROW(run.show([](Person &person) {
        onUserInterface([] {
            openDialog().Bind(
                wxEVT_BUTTON, [](wxCommandEvent &) { throw Mishap(); },
                wxImportCSVDialog::BTN_REMATCH);
        });
        person.click(wxImportCSVDialog::BTN_REMATCH);
    }),
                 Mishap);
    EXPECT_TRUE(run.show(pressOk));
}
