// SPDX-License-Identifier: MIT

#include "person/openDialog.h"

#include "person/UserInterface.h"

#include <functional>

#include <wxImportCSVDialog.h>

namespace {

/// The shown dialog among the windows of the process, or null.
wxDialog *find() {
    for (wxWindow *window : wxTopLevelWindows) {
        auto *dialog = dynamic_cast<wxDialog *>(window);
        if (dialog != nullptr && dialog->IsShown()) {
            return dialog;
        }
    }
    return nullptr;
}

std::vector<int> numbersBelow(const std::function<int()> &count,
                              const std::function<bool(int)> &isSo) {
    return read([&] {
        std::vector<int> numbers;
        for (int number = 0; number < count(); ++number) {
            if (isSo(number)) {
                numbers.push_back(number);
            }
        }
        return numbers;
    });
}

std::vector<int> rowsWhere(const std::function<bool(int)> &isSo) {
    return numbersBelow([] { return matchList().GetItemCount(); }, isSo);
}

} // namespace

bool isDialogOpen() {
    return find() != nullptr;
}

wxDialog &openDialog() {
    wxDialog *dialog = find();
    if (dialog == nullptr) {
        throw GivenUp("no dialog is open");
    }
    return *dialog;
}

wxWindow &controlOf(int id) {
    wxWindow *found = openDialog().FindWindow(id);
    if (found == nullptr) {
        throw GivenUp("the dialog has no control " + std::to_string(id));
    }
    return *found;
}

wxListBox &fileList() {
    return control<wxListBox>(wxImportCSVDialog::LISTBOX_FILE);
}

wxListCtrl &matchList() {
    return control<wxListCtrl>(wxImportCSVDialog::LISTBOX_MATCH);
}

Names matchTexts(int column) {
    return read([column] {
        Names texts;
        for (int row = 0; row < matchList().GetItemCount(); ++row) {
            texts.push_back(matchList().GetItemText(row, column).utf8_string());
        }
        return texts;
    });
}

std::vector<int> boldRows() {
    return rowsWhere(
        [](int row) { return matchList().GetItemFont(row).GetWeight() == wxFONTWEIGHT_BOLD; });
}

std::vector<int> italicRows() {
    return rowsWhere(
        [](int row) { return matchList().GetItemFont(row).GetStyle() == wxFONTSTYLE_ITALIC; });
}

std::vector<int> markedRows() {
    return rowsWhere(isShownAsMarked);
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

std::vector<int> usedEntries() {
    return numbersBelow([] { return static_cast<int>(fileList().GetCount()); }, isShownAsUsed);
}

std::string sentence() {
    return read([] {
        const wxWindow &place = control(11);
        return place.IsShown() ? place.GetLabel().utf8_string() : std::string();
    });
}
