// SPDX-License-Identifier: MIT

#pragma once

#include <wx/dataobj.h>

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

} // namespace columnimport
