// SPDX-License-Identifier: MIT

#include "UseMarks.h"

#include "languages/translated.h"

#include <wx/access.h>
#include <wx/listbox.h>
#include <wx/vector.h>

namespace columnimport {

namespace {

constexpr int roomInDialogUnits = 9; // a quarter of an average character's width each

wxString entryText(const wxString &name, bool isUsed) {
    constexpr wchar_t checkMark = 0x2713;
    return (isUsed ? wxString(checkMark) : wxString()) + '\t' + name;
}

#if wxUSE_ACCESSIBILITY

/// Child number 1 is row 0; the list itself is number 0.
class Entries : public wxAccessible {
public:
    Entries(wxListBox &list, const UseMarks &marks, const wxString &name)
        : wxAccessible(&list), m_list(list), m_marks(marks), m_name(name) {}

    wxAccStatus GetName(int child, wxString *name) override {
        if (child == wxACC_SELF) {
            *name = m_name;
            return wxACC_OK;
        }
        const unsigned row = static_cast<unsigned>(child) - 1;
        *name = m_list.GetString(row);
        if (m_marks.isUsed(row)) {
            name->Printf(translated("%s, in use"), wxString(*name));
        }
        return wxACC_OK;
    }

private:
    wxListBox &m_list;
    const UseMarks &m_marks;
    wxString m_name;
};

#endif

} // namespace

UseMarks::UseMarks(wxListBox &list, [[maybe_unused]] const wxString &name) : m_list(list) {
    list.MSWSetTabStops(wxVector<int>(1, roomInDialogUnits));
#if wxUSE_ACCESSIBILITY
    list.SetAccessible(new Entries(list, *this, name));
#endif
}

void UseMarks::showNames(const wxArrayString &names) {
    m_list.Clear();
    m_isUsed.assign(names.size(), false);
    wxArrayString texts;
    texts.reserve(names.size());
    for (const wxString &name : names) {
        texts.push_back(entryText(name, false));
    }
    if (!texts.empty()) {
        m_list.Append(texts);
    }
}

void UseMarks::set(unsigned row, bool isUsed) {
    m_isUsed[row] = isUsed;
    m_list.SetString(row, entryText(m_list.GetString(row), isUsed));
}

int UseMarks::width() const {
    return m_list.ConvertDialogToPixels(wxSize(roomInDialogUnits, 0)).x;
}

} // namespace columnimport
