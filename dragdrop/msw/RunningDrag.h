// SPDX-License-Identifier: MIT

#pragma once

class wxDropSource;
class wxString;
class wxWindow;

namespace columnimport {

/// What one drag has beyond the toolkit's own while it runs: here nothing. The toolkit's cursors go
/// with the pointer, and each drag ends.
class RunningDrag {
public:
    RunningDrag(wxDropSource &, const wxWindow &, const wxString &) {}
};

} // namespace columnimport
