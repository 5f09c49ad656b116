// SPDX-License-Identifier: MIT

#pragma once

class wxBitmap;
class wxSize;
class wxWindow;

namespace columnimport {

/// The picture of the arrow that stands between the two lists, in the size `size` and the colour
/// that text has in `window`.
wxBitmap arrowBitmap(const wxWindow &window, const wxSize &size);

} // namespace columnimport
