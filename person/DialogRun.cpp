// SPDX-License-Identifier: MIT

#include "person/DialogRun.h"

#include <chrono>
#include <exception>
#include <future>

bool runWithPerson(const Steps &steps, const std::function<bool()> &show) {
    std::future<void> actor;
    std::exception_ptr thrown;
    bool result = false;
    {
        // Its destruction marks the end of the run.
        std::promise<void> run;
        actor = std::async(std::launch::async, [&steps, over = run.get_future()] {
            try {
                onUserInterface([] {}); // waits for the display, which decides on the hand
                Person person;
                person.waitForDialog();
                steps(person);
                poll("the dialog is closed", [&over] {
                    return over.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
                });
            } catch (...) {
                onUserInterface([] {
                    if (isDialogOpen()) {
                        openDialog().EndModal(wxID_CANCEL);
                    }
                });
                throw;
            }
        });
        try {
            result = show();
        } catch (...) {
            thrown = std::current_exception();
        }
    }
    // The person may still be reading the dialog.
    while (actor.wait_for(std::chrono::seconds(0)) != std::future_status::ready) {
        handleEvents();
    }
    actor.get();
    if (thrown) {
        std::rethrow_exception(thrown);
    }
    return result;
}

bool DialogRun::show(const Steps &steps, wxImportCSVDialogPeer peer) {
    return runWithPerson(steps, [this, &peer] { return showAlone(peer); });
}

bool DialogRun::showAlone(wxImportCSVDialogPeer peer) {
    return peer.showWindow(owner, title, appColumns, fileName, &useSavedMatches, &matches,
                           &delimiter, &firstLineHeader, width, height);
}

bool DialogRun::showTable(const Names &tableColumns, const Steps &steps) {
    return runWithPerson(steps, [this, &tableColumns] {
        return wxImportCSVDialogPeer().showWindow(owner, title, appColumns, tableColumns, fileName,
                                                  &useSavedMatches, &matches, width, height);
    });
}

void pressOk(Person &person) {
    person.click(wxID_OK);
}

void pressCancel(Person &person) {
    person.click(wxID_CANCEL);
}
