#pragma once

#include <wx/dataobj.h>

namespace columnimport {

/// Text in the one format that holds every text. The toolkit's own object has a second one in the
/// locale's encoding, and where several programs or screens meet that one may be taken first.
class UnicodeText : public wxTextDataObject {
public:
    using wxTextDataObject::wxTextDataObject;

    std::size_t GetFormatCount(Direction) const override { return 1; }
    void GetAllFormats(wxDataFormat *formats, Direction) const override {
        *formats = GetPreferredFormat();
    }
};

} // namespace columnimport
