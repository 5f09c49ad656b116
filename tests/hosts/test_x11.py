# SPDX-License-Identifier: MIT
"""The dialog over windows that are not GTK's, as a person meets it. To be run on a screen."""

import json
import subprocess
import sys
import time
import unittest
from pathlib import Path

import columnimport

HERE = Path(__file__).parent
COLLARS = HERE / "../../examples/data/collars.csv"


def xdotool(*arguments):
    result = subprocess.run(["xdotool", *map(str, arguments)], stdout=-1, stderr=-3, text=True)
    return result.stdout.split()


def wait_for(what, state):
    deadline = time.monotonic() + 60
    while not (value := state()):
        if time.monotonic() > deadline:
            raise TimeoutError(what)
        time.sleep(0.02)
    return value


def window_named(name):
    found = wait_for(name, lambda: xdotool("search", "--onlyvisible", "--name", f"^{name}$"))
    return int(found[-1])


def frame_at(window):
    """The frame of the top-level that is seen where `window` is."""
    xdotool("mousemove", "--window", window, 20, 10)
    return xdotool("getmouselocation", "--shell")[-1]


def picture(window):
    return subprocess.run(["import", "-window", str(window), "rgb:-"], stdout=-1, check=True).stdout


class Host:
    """A program with a window called Host."""

    def __init__(self, *arguments):
        command = [sys.executable, *map(str, arguments)]
        self.process = subprocess.Popen(command, stdin=-1, stdout=-1, text=True)
        self.window = window_named("Host")
        self.move(1200)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.kill()
        self.process.communicate()

    def move(self, left):
        xdotool("windowmove", self.window, left, 300)
        wait_for("the window moves", lambda: abs(self.left() - left) < 50)

    def left(self):
        return int(xdotool("getwindowgeometry", "--shell", self.window)[1].split("=")[1])

    def click(self):
        xdotool("mousemove", "--window", self.window, 20, 10, "click", 1)


class OverX11(unittest.TestCase):
    def import_twice(self, module, repaints):
        with Host(HERE / "ticking.py", module, COLLARS) as host:
            for key, answer in ("Escape", False), ("Return", True):
                host.click()
                dialog = window_named("Import collars")
                if repaints:
                    before = picture(host.window)
                    wait_for("the host repaints", lambda: picture(host.window) != before)
                host.click()  # which has no effect
                host.move(300)
                xdotool("windowraise", host.window)
                self.assertEqual(frame_at(host.window), frame_at(dialog), "it is above its host")
                host.move(1200)
                wait_for("the dialog has the keys", lambda: xdotool("getactivewindow") == [str(dialog)])
                xdotool("key", key)
                self.assertEqual(host.process.stdout.readline(), f"{answer} ['BHID', 'X_UTM']\n")
            output, _ = host.process.communicate(timeout=60)
            self.assertEqual(output, "", "the clicks in between came to nothing")

    def test_a_host_in_tk_gets_the_answer(self):
        self.import_twice("tk_host", repaints=False)

    def test_a_host_in_qt_gets_the_answer_and_repaints(self):
        self.import_twice("qt_host", repaints=True)

    def test_a_host_with_a_second_process_gets_the_answer_and_repaints(self):
        self.import_twice("tk_process_host", repaints=True)

    def test_a_host_that_dies_leaves_a_dialog_that_can_be_answered(self):
        with Host(HERE / "ticking.py", "tk_host", COLLARS) as host:
            command = [sys.executable, "-m", "columnimport", COLLARS, "--columns", "dip", "--json"]
            command += ["--show", "--title", "Import", "--x11-window", hex(host.window)]
            run = subprocess.Popen(command, stdout=subprocess.PIPE, text=True)
            dialog = window_named("Import")
        xdotool("windowfocus", "--sync", dialog, "key", "Return")
        self.assertTrue(json.loads(run.communicate(timeout=60)[0])["accepted"])

    def test_what_is_no_window_of_a_program_is_refused(self):
        root = int(xdotool("search", "--maxdepth", "0", "")[0])
        for number in 0, -1, 0x7FFFFFFF, 2**32, 2**64 + 1, root:
            with self.subTest(number=number), self.assertRaisesRegex(ValueError, "X11 window"):
                columnimport.show(["dip"], ["DIP"], x11_window=number)


if __name__ == "__main__":
    unittest.main()
