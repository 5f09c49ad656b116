#include "DialogRun.h"

#include <atomic>
#include <thread>

#include <gtest/gtest.h>
#include <wx/dialog.h>
#include <wxImportCSVDialog.h>

namespace {

/// A person who acts while `show` is open.
bool accompany(const std::function<void(Person &)> &act, const std::function<bool()> &show) {
    std::atomic<bool> isOver = false;
    std::thread thread([&act, &isOver] {
        try {
            Person person;
            person.waitForDialog();
            act(person);
            poll("the dialog is closed", [&isOver] { return isOver.load(); });
        } catch (const GivenUp &reason) {
            ADD_FAILURE() << reason.what();
            onUserInterface([] {
                if (auto *ok = wxWindow::FindWindowById(wxID_OK)) {
                    static_cast<wxDialog *>(wxGetTopLevelParent(ok))->EndModal(wxID_CANCEL);
                }
            });
        }
    });
    const bool result = show();
    isOver = true;
    thread.join();
    return result;
}

} // namespace

bool DialogRun::show(const std::function<void(Person &)> &act) {
    return accompany(act, [this] {
        return wxImportCSVDialogPeer().showWindow(owner, title, appColumns, fileName,
                                                  &useSavedMatches, &matches, &delimiter,
                                                  &firstLineHeader, width, height);
    });
}

bool DialogRun::showTable(const Names &tableColumns, const std::function<void(Person &)> &act) {
    return accompany(act, [this, &tableColumns] {
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

Names matchTexts() {
    return read([] {
        Names texts;
        for (int row = 0; row < matchList().GetItemCount(); ++row) {
            texts.push_back(
                matchList().GetItemText(row, wxImportCSVDialog::COLUMN_MATCH).utf8_string());
        }
        return texts;
    });
}

std::vector<int> boldRows() {
    return read([] {
        std::vector<int> rows;
        for (int row = 0; row < matchList().GetItemCount(); ++row) {
            if (matchList().GetItemFont(row).GetWeight() == wxFONTWEIGHT_BOLD) {
                rows.push_back(row);
            }
        }
        return rows;
    });
}

Names fileTexts() {
    return read([] {
        Names texts;
        for (unsigned row = 0; row < fileList().GetCount(); ++row) {
            texts.push_back(fileList().GetString(row).utf8_string());
        }
        return texts;
    });
}
