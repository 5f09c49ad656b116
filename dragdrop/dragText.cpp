#include "dragdrop/dragText.h"

#include <wx/dataobj.h>
#include <wx/dnd.h>
#include <wx/event.h>
#include <wx/utils.h>

namespace columnimport {

bool movedWithButtonDown(const wxMouseEvent &move) {
    return wxGetMouseState().LeftIsDown() && move.LeftIsDown();
}

void dragText(wxWindow &source, const wxString &text) {
    wxTextDataObject data(text);
    wxDropSource drag(&source);
    drag.SetData(data);
    drag.DoDragDrop(wxDrag_AllowMove);
}

} // namespace columnimport
