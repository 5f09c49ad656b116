# SPDX-License-Identifier: MIT
"""The smallest host in Qt: python3 qt_host.py FILE"""

import sys

try:
    from PySide6.QtWidgets import QApplication, QPushButton
except ImportError:  # Debian 12 has the other one
    from PyQt6.QtWidgets import QApplication, QPushButton

import columnimport


def import_file() -> None:
    try:
        result = columnimport.show(
            ["holename", "easting"],
            sys.argv[1],
            title="Import collars",
            x11_window=int(button.winId()),
        )
    except columnimport.Error as error:
        print(error, flush=True)
    else:
        names = [match.name if match else None for match in result.matches]
        print(result.accepted, names, flush=True)


application = QApplication(["host", "-platform", "xcb"])
button = QPushButton("Import", windowTitle="Host")
button.clicked.connect(import_file)
button.show()

if __name__ == "__main__":
    sys.exit(application.exec())
