// SPDX-License-Identifier: MIT

#pragma once

// The parts of a drag that differ between platforms.

#include <string>
#include <vector>

#include <wx/dataobj.h>

class wxDropSource;
class wxDropTarget;
class wxWindow;

namespace columnimport {

/// Text for other programs and for the dialog itself, as UTF-8 only, under both of its names: under
/// Wayland some toolkits ask only for the second. The toolkit's own object also offers the locale's
/// encoding, which can't hold every text and may be taken first.
class UnicodeText : public wxTextDataObject {
public:
    using wxTextDataObject::wxTextDataObject;

    std::size_t GetFormatCount(Direction) const override { return 2; }
    void GetAllFormats(wxDataFormat *formats, Direction) const override {
        formats[0] = GetPreferredFormat();
        formats[1] = wxDataFormat("text/plain;charset=utf-8");
    }

    using wxTextDataObject::GetDataHere;
    using wxTextDataObject::GetDataSize;
    std::size_t GetDataSize(const wxDataFormat &) const override {
        return wxTextDataObject::GetDataSize(GetPreferredFormat());
    }
    bool GetDataHere(const wxDataFormat &, void *data) const override {
        return wxTextDataObject::GetDataHere(GetPreferredFormat(), data);
    }
};

/// The best format for the text that a program offers: UTF-8 under either of its names, or else
/// STRING or text/plain, whose encoding is unknown. Invalid if the program offers no text.
wxDataFormat bestTextFormat(const std::vector<wxDataFormat> &offered);

/// Text that another program or the dialog itself drops on `target`, decoded like a name.
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

/// Runs `drag` to its end, with a label beside the pointer that reads `shown`. `source` is the
/// window that it starts in.
void runDrag(wxDropSource &drag, const wxWindow &source, const wxString &shown);

} // namespace columnimport
