// SPDX-License-Identifier: MIT

#pragma once

struct _GtkWidget; // NOLINT(bugprone-reserved-identifier): the name that GTK gives it

/// All names of the library, except those of the classes that a host uses.
namespace columnimport {

/// The native handle of a host's window: a GTK top-level. Any other widget stands for the top-level
/// that contains it.
using HostWindow = _GtkWidget *;

} // namespace columnimport
