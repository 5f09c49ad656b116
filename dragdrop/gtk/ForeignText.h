// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include <wx/dataobj.h>

class wxDropTarget;

namespace columnimport {

/// The best format for the text that a program offers: UTF-8 under either of its names, or else
/// STRING or text/plain, whose encoding is unknown. Invalid if the program offers no text.
wxDataFormat bestTextFormat(const std::vector<wxDataFormat> &offered);

/// Text that another program or the dialog itself drops on `target`. Its bytes are decoded as those
/// of a name.
class ForeignText : public wxTextDataObject {
public:
    explicit ForeignText(const wxDropTarget &target) : m_target(target) {}

    /// The best format of the drag that is over the target.
    wxDataFormat GetPreferredFormat(Direction) const override;
    std::size_t GetFormatCount(Direction) const override { return 1; }

    using wxTextDataObject::SetData;
    bool SetData(const wxDataFormat &, std::size_t size, const void *data) override;

private:
    const wxDropTarget &m_target;
};

} // namespace columnimport
