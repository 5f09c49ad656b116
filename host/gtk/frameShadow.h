// SPDX-License-Identifier: MIT

#pragma once

class wxDialog;
class wxSize;

namespace columnimport {

/// What the size of `dialog`, which is shown, holds beside its frame. Where GTK draws the frame
/// itself, as it does under Wayland, the toolkit counts the shadow around the frame in.
wxSize frameShadow(const wxDialog &dialog);

} // namespace columnimport
