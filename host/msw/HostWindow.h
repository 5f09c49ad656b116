// SPDX-License-Identifier: MIT

#pragma once

struct HWND__;

/// What is not a class of the library itself.
namespace columnimport {

/// The native handle of a host's window: what the platform's headers call an HWND.
using HostWindow = HWND__ *;

} // namespace columnimport
