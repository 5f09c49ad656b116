# SPDX-License-Identifier: MIT
"""The smallest host in Tk: python3 tk_host.py FILE"""

import sys
import tkinter

import columnimport


def import_file() -> None:
    try:
        result = columnimport.show(
            ["holename", "easting"],
            sys.argv[1],
            title="Import collars",
            x11_window=root.winfo_id(),
        )
    except columnimport.Error as error:
        print(error, flush=True)
    else:
        names = [match.name if match else None for match in result.matches]
        print(result.accepted, names, flush=True)


root = tkinter.Tk(className="Host")
tkinter.Button(root, text="Import", command=import_file).pack(expand=True, fill="both")

if __name__ == "__main__":
    root.mainloop()
