#include "dragdrop/dragText.h"

#include <wx/dataobj.h>
#include <wx/dnd.h>

namespace columnimport {

void dragText(wxWindow &source, const wxString &text) {
    wxTextDataObject data(text);
    wxDropSource drag(&source);
    drag.SetData(data);
    drag.DoDragDrop(wxDrag_AllowMove);
}

} // namespace columnimport
