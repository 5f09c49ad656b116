#include "dragdrop/TextDropTarget.h"

#include "dialogs/NameText.h"
#include "dialogs/matchTexts.h"
#include "dialogs/wxImportCSVDialog.h"
#include "dragdrop/ListCtrlSource.h"

namespace columnimport {

TextDropTarget::TextDropTarget(std::int32_t ownerId) : m_ownerId(ownerId) {}

TextDropTarget::~TextDropTarget() = default;

void TextDropTarget::setMatchList(ListCtrlSource *matchList) {
    m_matchList = matchList;
}

wxDragResult TextDropTarget::OnDragOver(wxCoord x, wxCoord y, wxDragResult suggested) {
    if (m_ownerId == wxImportCSVDialog::LISTBOX_MATCH) {
        ListCtrlSource &list = *findMatchList();
        const long row = list.rowAt(wxPoint(x, y));
        if (row >= 0) {
            list.hoverOver(row);
        }
        list.scrollAtEdge();
    }
    return suggested;
}

bool TextDropTarget::OnDropText(wxCoord x, wxCoord y, const wxString &text) {
    if (m_matchList != nullptr) {
        for (long row = m_matchList->nextMarkedRow(-1); row != -1;
             row = m_matchList->nextMarkedRow(row)) {
            m_matchList->setMatchText(row, notUsed);
        }
        return true;
    }
    ListCtrlSource &list = *findMatchList();
    const long row = list.rowAt(wxPoint(x, y));
    if (row >= 0) {
        // Another program's text may be longer than the list could lay out.
        list.setMatchText(row, toText(toBytes(text)));
    }
    return true;
}

} // namespace columnimport
