#include "dragdrop/ListBoxSource.h"

#include "dragdrop/ListCtrlSource.h"
#include "dragdrop/controls.h"
#include "dragdrop/dragText.h"

namespace columnimport {

ListBoxSource::ListBoxSource(wxWindow *parent, wxWindowID id, const wxPoint &position,
                             const wxSize &size)
    : wxListBox(parent, id, position, size) {
    Bind(wxEVT_LEFT_DOWN, &ListBoxSource::onLeftDown, this, wxID_ANY, wxID_ANY);
    Bind(wxEVT_MOTION, &ListBoxSource::onMouseMove, this, wxID_ANY, wxID_ANY);
}

ListBoxSource::~ListBoxSource() = default;

void ListBoxSource::onLeftDown(wxMouseEvent &event) {
    const int row = HitTest(event.GetPosition());
    if (row >= 0) {
        SetSelection(row);
    }
}

void ListBoxSource::onMouseMove(wxMouseEvent &event) {
    const int row = HitTest(event.GetPosition());
    if (row < 0 || !movedWithButtonDown(event)) {
        return;
    }
    findControl<ListCtrlSource>(*this, matchListId)->clearMarkedRows();
    SetSelection(row);
    const wxString name = GetString(static_cast<unsigned>(row));
    dragText(*this, name, name);
}

} // namespace columnimport
