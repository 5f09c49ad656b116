#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""What a person does in the window, with a real pointer and real keys: where things are and what they
show is asked as a screen reader asks it.
    tests/drillhole/window.py PROGRAM"""

import os
import shutil
import sqlite3
import subprocess
import sys
import tempfile
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402


def expect(what, look, wanted=True):
    end = time.monotonic() + 40
    while (found := look()) != wanted:
        assert time.monotonic() < end, f"{what}: {found!r} instead of {wanted!r}"
        GLib.MainContext.default().iteration(False)
        time.sleep(0.02)


def hand(*words):
    return subprocess.run(["xdotool", *map(str, words)], text=True, stdout=subprocess.PIPE).stdout.strip()


def below(node):
    yield node
    for index in range(min(node.get_child_count(), 20)):  # of a table its titles and the first row
        if (child := node.get_child_at_index(index)) is not None:
            yield from below(child)


def seen(role, begin=""):
    """Where on the screen there are things of that kind whose text begins so, and the texts."""
    try:
        places = [(node.get_name() or node.get_description(), node.get_extents(Atspi.CoordType.SCREEN))
                  for node in below(Atspi.get_desktop(0)) if node.get_role_name() == role]
    except GLib.Error:  # one went away meanwhile
        return []
    return [(text, place) for text, place in places if text.startswith(begin) and place.x >= 0]


def shows(role, begin):
    expect(f"a {role} {begin}", lambda: seen(role, begin) != [])


def press(role, begin):
    for _, place in seen(role, begin)[-1:]:  # in the dialog, where one is open
        hand("mousemove", place.x + place.width // 2, place.y + place.height // 2, "click", 1)


def click(role, begin):
    shows(role, begin)
    press(role, begin)


def line():
    """The text of the field that takes the keys, or None."""
    try:
        return next((Atspi.Text.get_text(node, 0, -1) for node in below(Atspi.get_desktop(0))
                     if node.get_role_name() == "text" and node.get_state_set().contains(Atspi.StateType.FOCUSED)), None)
    except GLib.Error:
        return None


def fill(window, text, button):
    def is_there():
        return hand("getactivewindow", "getwindowname").startswith(window)

    def is_typed():
        if line() is None:
            hand("key", "ctrl+l")  # gives a file chooser its line for a path
            return False
        hand("key", "ctrl+a")
        hand("type", text)
        end = time.monotonic() + 5
        while (found := line()) != text and time.monotonic() < end:
            time.sleep(0.02)
        return found == text

    expect(f"a window {window}", is_there)
    expect(f"the line reads {text}", is_typed)  # a chooser empties it once its list is there
    # The toolkit's list of completions may take the first click.
    expect(f"no window {window}", lambda: is_there() and press("push button", button), False)


def import_file(name, text):
    with open(path(name), "w") as file:
        file.write(text)
    click("push button", "Import File")
    fill("Choose a File", path(name), "Open")
    shows("frame", "Import ")
    hand("key", "Return")


def path(name):
    return os.path.join(scratch, name)


def ask(query):
    return sqlite3.connect(path("holes.sqlite")).execute(query).fetchone()[0]


def rows(label, first):
    shows("label", label)
    expect("the first hole", lambda: [text for text, _ in seen("table cell")][:1], [first])


scratch = tempfile.mkdtemp()
os.environ.update(XDG_CONFIG_HOME=scratch, XDG_DATA_HOME=scratch, LC_ALL="C.UTF-8")
with sqlite3.connect(path("holes.sqlite")) as holes:
    holes.execute("create table collar (holename text primary key, easting real, northing real, elevation real, length real)")
    holes.executemany("insert into collar values (?, ?, 0, 0, 90)", [(f"H-{i:04}", 1200 - i) for i in range(1, 1201)])
with open(path("stderr"), "w") as errors:
    program = subprocess.Popen([sys.argv[1], "--database=" + path("holes.sqlite")], stderr=errors)
try:
    rows("1 to 500 of 1,200", "H-0001")
    click("push button", "Last")
    rows("701 to 1,200 of 1,200", "H-0701")
    click("text", "Shows the rows from")
    hand("type", "600")
    hand("key", "Return")
    rows("600 to 1,099 of 1,200", "H-0600")
    click("table column header", "easting")
    rows("1 to 500 of 1,200", "H-1200")
    click("text", "Search")
    hand("type", "H-11")
    rows("1 to 100 of 100", "H-1199")
    click("table column header", "easting")
    rows("1 to 100 of 100", "H-1100")

    # What is there is deleted after a question with the numbers, and only then.
    click("check box", "Replace the rows")
    for answer, left in (("Keep", 1200), ("Replace", 2)):
        import_file("collars.csv", "hole,x,y\nLR-1,1,2\nLR-2,3,4\n")
        shows("label", "Replace 1,200 collars by 2 new ones?")
        click("push button", answer)
        expect("the collars", lambda: ask("select count(*) from collar"), left)
    shows("label", "collars.csv: 2 rows imported in place of the earlier ones, none refused.")
    import_file("collars_4.csv", "hole,x,y\nLR-4,5,6\n")
    expect("the collars, and nothing is asked", lambda: ask("select count(*) from collar"), 3)

    # Refused rows come out, are corrected and go in again.
    click("radio button", "Assays")
    import_file("assays.csv", "BHID,FROM,TO,Au g/t\nLR-1,0,1,0.5\nLR-1,1,2,x\n")
    click("toggle button", "Menu")
    click("menu item", "Export Refused Rows")
    fill("Export Refused Rows", path("refused.csv"), "Save")
    expect("the export", lambda: os.path.exists(path("refused.csv")))
    with open(path("refused.csv")) as refused:
        import_file("corrected_assays.csv", refused.read().replace(',"x"', ",0.7"))
    expect("the grades", lambda: ask("select sum(au_gt) from assay"), 1.2)

    # The window does not close over an import, which ends when it is cancelled.
    import_file("assays_more.csv", "BHID,FROM,TO,Au g/t\n" + "".join(f"LR-1,{i},{i + 1},1\n" for i in range(9, 2000000)))
    shows("push button", "Cancel")
    hand("key", "alt+F4")
    shows("label", "An import is running.")
    click("push button", "Cancel")
    shows("label", "assays_more.csv was cancelled.")
    expect("the assays", lambda: ask("select count(*) from assay"), 2)

    click("toggle button", "Menu")
    click("menu item", "Open Another Database")
    fill("Open a Database", path("other.sqlite"), "Connect")
    shows("frame", "Drill holes in " + path("other.sqlite"))
    shows("radio button", "Collars (0)")
    hand("key", "alt+F4")
    assert program.wait(40) == 0
    with open(path("stderr")) as errors:  # GTK says so of a click on a file chooser that just goes
        said = [line for line in errors if line.strip() and "WIDGET_REALIZED_FOR_EVENT" not in line]
    assert said == [], said
finally:
    program.kill()
    shutil.rmtree(scratch)
