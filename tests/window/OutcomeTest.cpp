// SPDX-License-Identifier: MIT

// The results of a run, however it ends, and the dialog's place meanwhile.

#include "tests/window/FileRun.h"

#include <atomic>

#include <wx/app.h>
#include <wx/log.h>
#include <wxImportCSVDialog.h>

namespace {

class Outcome : public testing::Test {
protected:
    FileRun run{"BHID,Azimut;Dip\n", {"holename", "dip"}};
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
    FileRun named("Not used\n", {"a", "b"});
    named.useSavedMatches = true;
    named.matches = {"Not used", ""};
    named.show(pressOk);
    EXPECT_EQ(named.matches, (Names{"", ""}));
}

TEST_F(Outcome, IsEmptyWithoutApplicationColumns) {
    run.appColumns.clear();
    run.confirmAfter([](Person &) { EXPECT_EQ(fileTexts(), (Names{"BHID", "Azimut;Dip"})); });
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
    run.confirmAfter([&second](Person &) {
        onUserInterface([&second] {
            const auto *application = wxApp::GetInstance();
            EXPECT_FALSE(second.showAlone());
            EXPECT_EQ(wxApp::GetInstance(), application);
        });
    });
    EXPECT_EQ(second.matches, Names{"kept"});
}

TEST_F(Outcome, ShowsTheUserNoMessageOfTheToolkit) {
    run.confirmAfter([](Person &) {
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
    });
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
