// SPDX-License-Identifier: MIT

#pragma once

#include <wx/dataobj.h>

class wxDropTarget;

namespace columnimport {

/// Text that another program, or the dialog itself, drops on a target: as Unicode, into which
/// Windows turns what is offered otherwise.
class ForeignText : public wxTextDataObject {
public:
    explicit ForeignText(const wxDropTarget &) {}
};

} // namespace columnimport
