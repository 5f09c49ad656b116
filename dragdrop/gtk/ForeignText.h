// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include <wx/dataobj.h>

class wxDropTarget;

namespace columnimport {

/// Under which of the names that a program has for its text this is asked for: that of UTF-8 under
/// either name, and else STRING or text/plain, whose encoding nobody tells. An invalid format if
/// the program offers no text.
wxDataFormat bestTextFormat(const std::vector<wxDataFormat> &offered);

/// Text that another program, or the dialog itself, drops on `target`. Whatever its encoding, its
/// bytes are read as those of a name are.
class ForeignText : public wxTextDataObject {
public:
    explicit ForeignText(const wxDropTarget &target) : m_target(target) {}

    /// The one format that is wanted of the drag that is over the target.
    wxDataFormat GetPreferredFormat(Direction) const override;
    std::size_t GetFormatCount(Direction) const override { return 1; }

    using wxTextDataObject::SetData;
    bool SetData(const wxDataFormat &, std::size_t size, const void *data) override;

private:
    const wxDropTarget &m_target;
};

} // namespace columnimport
