// SPDX-License-Identifier: MIT

#pragma once

class wxBitmap;
class wxSize;
class wxWindow;

namespace columnimport {

/// The arrow between the two lists, of this `size` and in the text colour of `window`.
wxBitmap arrowBitmap(const wxWindow &window, const wxSize &size);

} // namespace columnimport
