# SPDX-License-Identifier: MIT
"""A host in Tk that goes on while the dialog is open: python3 tk_process_host.py FILE"""

import json
import subprocess
import sys
import tkinter


def import_file() -> None:
    command = [sys.executable, "-m", "columnimport", sys.argv[1], "--show", "--json"]
    command += ["--columns", "holename,easting", "--title", "Import collars"]
    command += ["--x11-window", str(root.winfo_id())]
    button.configure(state="disabled")
    wait(subprocess.Popen(command, stdout=subprocess.PIPE, text=True))


def wait(process: "subprocess.Popen[str]") -> None:
    if process.poll() is None:
        root.after(50, wait, process)
        return
    output, _ = process.communicate()
    button.configure(state="normal")
    if output:  # nothing if the dialog could not be shown
        result = json.loads(output)
        print(result["accepted"], [match["name"] for match in result["matches"]], flush=True)


root = tkinter.Tk(className="Host")
button = tkinter.Button(root, text="Import", command=import_file)
button.pack(expand=True, fill="both")

if __name__ == "__main__":
    root.mainloop()
