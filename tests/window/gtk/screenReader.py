#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Hears the dialog as a screen reader does, and acts in it by that way alone."""

import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402


def expect(what, look, wanted=True):
    end = time.monotonic() + 20
    while (found := look()) != wanted:
        assert time.monotonic() < end, f"{what}: {found!r} instead of {wanted!r}"
        GLib.MainContext.default().iteration(False)


def below(node):
    yield node
    for index in range(node.get_child_count()):
        yield from below(node.get_child_at_index(index))


def find(role, name):
    return next((node for node in below(Atspi.get_desktop(0))
                 if node.get_role_name() == role and node.get_name() == name), None)


def states(node):
    node.clear_cache()
    return {state.value_nick for state in node.get_state_set().get_states()}


def names(node):
    return [node.get_child_at_index(row).get_name() for row in range(node.get_child_count())]


def row(number):
    return rows.get_child_at_index(number)


def place(node, origin=Atspi.CoordType.SCREEN):
    rect = node.get_extents(origin)
    return rect.x, rect.y, rect.width, rect.height


def window(node):
    """Where the window of a node is, by its place on the screen and in the window."""
    onScreen, inWindow = place(node), place(node, Atspi.CoordType.WINDOW)
    return onScreen[0] - inWindow[0], onScreen[1] - inWindow[1]


def act(node, action):
    actions = [node.get_action_name(index) for index in range(node.get_n_actions())]
    node.do_action(actions.index(action))


def listen(event):
    if event.source.get_name() == "Column matching":
        isRow = event.type == "object:active-descendant-changed"
        heard.append(event.any_data.get_name() if isRow else event.any_data)


def note(event):
    isRow = event.source.get_role_name() == "list item"
    if isRow or event.source.get_name() == "Column matching":
        which = event.source.get_index_in_parent() if isRow else "list"
        noted.add((event.type.split(":")[-1], which, event.detail1))


heard = []
noted = set()
ears = Atspi.EventListener.new(listen)
moreEars = Atspi.EventListener.new(note)
for kind in ("state-changed:focused", "state-changed:selected", "property-change:accessible-name"):
    moreEars.register("object:" + kind)
for kind in ("announcement", "selection-changed", "active-descendant-changed"):
    ears.register("object:" + kind)

expect("the dialog is there", lambda: find("push button", "OK") is not None)
unnamed = [node.get_role_name() for node in below(find("frame", "Import"))
           if "focusable" in states(node) and not node.get_name()]
expect("what takes the focus without a name", lambda: unnamed, [])

expect("the delimiter", lambda: find("text", "Field delimiter") is not None)
expect("the file's columns", lambda: find("table", "File columns") is not None)
rows = find("list", "Column matching")
expect("the rows", lambda: names(rows)[:3], ["hole: HOLE", "gold: Not used", "copper: Not used"])
always = {"enabled", "sensitive", "focusable", "visible"}
ofList = always | {"manages-descendants", "multiselectable", "showing"}
ofRow = always | {"transient", "selectable"}
expect("the list without the keys", lambda: states(rows), ofList)
gone = row(0)
for _ in range(2):
    act(find("check box", "First Line contain title"), "click")
expect("a row that has gone", lambda: "defunct" in states(gone))
expect("no further row", lambda: row(100), None)
row(99).grab_focus()
expect("the last row", lambda: states(row(99)), ofRow | {"showing", "active", "focused"})
row(0).grab_focus()
expect("the current row", lambda: states(row(0)), ofRow | {"showing", "active", "focused"})
expect("the list with the keys", lambda: states(rows), ofList | {"focused"})
expect("a row out of view", lambda: states(row(99)), ofRow)
rows.select_all()
expect("all rows marked", rows.get_n_selected_children, 100)
rows.clear_selection()
expect("none marked", rows.get_n_selected_children, 0)
for each in range(3):
    rows.select_child(each)
rows.deselect_selected_child(0)
expect("the marked rows", lambda: [each for each in range(3) if rows.is_child_selected(each)],
       [1, 2])
expect("the name of each", lambda: [rows.get_selected_child(index).get_name()
                                    for index in range(rows.get_n_selected_children())],
       ["gold: Not used", "copper: Not used"])
expect("no further name", lambda: rows.get_selected_child(2), None)
expect("a marked row", lambda: states(row(2)), ofRow | {"showing", "selected"})
x, y, width, height = place(row(0))
expect("a row below another", lambda: place(row(1)), (x, y + height, width, height))
expect("the rows' window", lambda: window(row(0)), window(find("push button", "OK")))

act(find("table cell", "CU"), "activate")
expect("what is heard", lambda: heard[1:3] + heard[-4:],
       ["hole: HOLE", 0, "gold: CU (2 rows)", 0, 0, "copper: CU"])
expect("the rows", lambda: names(rows)[:3], ["hole: HOLE", "gold: CU", "copper: CU"])
expect("a mark at a column in use", lambda: find("table cell", "CU, in use") is not None)
expect("the current row", lambda: "focused" in states(find("list item", "copper: CU")))

find("push button", "OK").grab_focus()
expect("the current row without the keys", lambda: states(row(2)), ofRow | {"showing", "active"})
wanted = {("focused", "list", 1), ("focused", "list", 0), ("focused", 0, 1), ("focused", 0, 0),
          ("selected", 0, 1), ("selected", 2, 0), ("accessible-name", 2, 0)}
expect("what is noted", lambda: wanted - noted, set())
act(find("push button", "Reset to Default"), "click")
expect("a guess", lambda: names(rows)[:3],
       ["hole: HOLE", "gold: Not used", "copper: COPER, a guess"])
act(find("push button", "OK"), "click")
