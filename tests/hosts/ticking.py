# SPDX-License-Identifier: MIT
"""Runs a host of the guide with a button that changes all the time, until its input ends.

ticking.py MODULE FILE
"""

import importlib
import itertools
import select
import sys

module = importlib.import_module(sys.argv.pop(1))
numbers = itertools.count()


def text():
    if select.select([sys.stdin], [], [], 0)[0]:
        sys.exit()
    return str(next(numbers))


def tick_in_tk():
    next(iter(module.root.children.values())).configure(text=text())
    module.root.after(50, tick_in_tk)


if hasattr(module, "root"):
    tick_in_tk()
    module.root.mainloop()
else:
    # Of the same Qt as the host's.
    core = importlib.import_module(module.QPushButton.__module__.replace("Widgets", "Core"))
    timer = core.QTimer()
    timer.timeout.connect(lambda: module.button.setText(text()))
    timer.start(50)
    module.application.exec()
