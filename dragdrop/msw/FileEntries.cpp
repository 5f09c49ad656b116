// SPDX-License-Identifier: MIT

#include "dragdrop/FileEntries.h"

#include <wx/listbox.h>
#include <wx/vector.h>

namespace columnimport {

namespace {

constexpr int roomInDialogUnits = 9; // four of them are as wide as an average character

// The native control only shows text: an entry is the mark or nothing, a tab, and the name.
wxString entryText(const wxString &name, bool isUsed) {
    constexpr wchar_t checkMark = 0x2713;
    return (isUsed ? wxString(checkMark) : wxString()) + '\t' + name;
}

} // namespace

FileEntries::FileEntries(wxListBox &list) : m_list(list) {
    list.MSWSetTabStops(wxVector<int>(1, roomInDialogUnits));
}

FileEntries::~FileEntries() = default;

void FileEntries::showNames(const wxArrayString &names) {
    m_list.Clear();
    m_isMarked.assign(names.size(), false);
    wxArrayString texts;
    texts.reserve(names.size());
    for (const wxString &name : names) {
        texts.push_back(entryText(name, false));
    }
    if (!texts.empty()) {
        m_list.Append(texts);
    }
}

void FileEntries::mark(unsigned row, bool isUsed) {
    m_isMarked[row] = isUsed;
    m_list.SetString(row, entryText(m_list.GetString(row), isUsed));
}

void FileEntries::goTo(int row) {
    m_list.SetSelection(row);
}

int FileEntries::markWidth() const {
    return m_list.ConvertDialogToPixels(wxSize(roomInDialogUnits, 0)).x;
}

} // namespace columnimport
