// SPDX-License-Identifier: MIT

#pragma once

class wxDialog;
class wxSize;

namespace columnimport {

/// How much larger the size of `dialog`, which is shown, is than its frame. Where GTK draws the
/// frame itself, as under Wayland, the toolkit counts the shadow around it in.
wxSize frameShadow(const wxDialog &dialog);

} // namespace columnimport
