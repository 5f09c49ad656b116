// SPDX-License-Identifier: MIT

#pragma once

class wxDropSource;

namespace columnimport {

/// Ends one drag if the screen ignores it, which it does not do here.
class IgnoredDrag {
public:
    explicit IgnoredDrag(wxDropSource &) {}
};

} // namespace columnimport
