// SPDX-License-Identifier: MIT

#pragma once

struct HWND__;

/// The library's names beside those of its classes, which begin with wxImport.
namespace columnimport {

/// The native handle of a host's window: what the platform's headers call an HWND.
using HostWindow = HWND__ *;

} // namespace columnimport
