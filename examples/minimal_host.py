#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The smallest host written with PyGObject. It prints one line for each of its columns.

PYTHONPATH=python examples/minimal_host.py examples/data/collars.csv
"""

import sys

import gi

gi.require_version("Gtk", "3.0")
from gi.repository import Gtk

import columnimport
from columnimport import Column

COLUMNS = [
    Column("holename", required=True),
    Column("easting", alternatives=["X_MGA"]),
    Column("northing", alternatives=["Y_MGA"]),
    Column("elevation", alternatives=["RL"]),
]

window = Gtk.Window(title="Host")
window.show()
try:
    result = columnimport.show(
        COLUMNS, sys.argv[1], window=window, title="Import collars", size=(900, 840)
    )
except columnimport.Error as error:
    sys.exit(str(error))

for column, match in zip(COLUMNS, result.matches):
    print(column.name, "<-", match.name if match else "")
sys.exit(not result.accepted)
