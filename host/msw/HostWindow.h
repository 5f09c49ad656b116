// SPDX-License-Identifier: MIT

#pragma once

struct HWND__;

/// All names of the library, except those of the classes that a host uses.
namespace columnimport {

/// The native handle of a host's window, an HWND.
using HostWindow = HWND__ *;

} // namespace columnimport
