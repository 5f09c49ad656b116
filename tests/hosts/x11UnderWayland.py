# SPDX-License-Identifier: MIT
"""Where no X server is, a dialog over a window of X11 is refused, and GTK goes on to Wayland."""

import gi

import columnimport


def refusal():
    try:
        columnimport.show(["dip"], ["DIP"], x11_window=1)
    except columnimport.NoDisplay as error:
        return str(error)
    raise AssertionError("a dialog was shown")


assert "no X11 display" in refusal()
gi.require_version("Gtk", "3.0")
from gi.repository import Gtk  # which opens the display

assert Gtk.init_check()[0], "Wayland is open to GTK as before"
assert "on Wayland" in refusal()
