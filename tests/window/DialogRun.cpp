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

bool DialogRun::show(const std::function<void(Person &)> &act, wxImportCSVDialogPeer peer) {
    return accompany(act, [this, &peer] {
        return peer.showWindow(owner, title, appColumns, fileName, &useSavedMatches, &matches,
                               &delimiter, &firstLineHeader, width, height);
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

namespace {

std::vector<int> rowsWhere(const std::function<bool(int)> &isSo) {
    return read([&isSo] {
        std::vector<int> rows;
        for (int row = 0; row < matchList().GetItemCount(); ++row) {
            if (isSo(row)) {
                rows.push_back(row);
            }
        }
        return rows;
    });
}

} // namespace

std::vector<int> boldRows() {
    return rowsWhere(
        [](int row) { return matchList().GetItemFont(row).GetWeight() == wxFONTWEIGHT_BOLD; });
}

// The highlight is what there is to be seen of a mark.
std::vector<int> markedRows() {
    return rowsWhere([](int row) {
        const wxColour colour = matchList().GetItemBackgroundColour(row);
        return colour.IsOk() && colour != matchList().GetBackgroundColour();
    });
}

std::vector<int> hoverRows() {
    return rowsWhere([](int row) {
        return matchList().GetItemState(row, wxLIST_STATE_SELECTED) == wxLIST_STATE_SELECTED;
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
