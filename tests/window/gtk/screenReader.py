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


def act(node, action):
    actions = [node.get_action_name(index) for index in range(node.get_n_actions())]
    node.do_action(actions.index(action))


def listen(event):
    if event.source.get_name() == "Column matching":
        isRow = event.type == "object:active-descendant-changed"
        heard.append(event.any_data.get_name() if isRow else event.any_data)


heard = []
ears = Atspi.EventListener.new(listen)
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
asked = {"manages-descendants", "multiselectable", "showing", "focusable", "focused"}
expect("the list without the keys", lambda: asked - states(rows), {"focused"})
rows.get_child_at_index(99).grab_focus()
expect("the last row in view", lambda: "showing" in states(rows.get_child_at_index(99)))
rows.get_child_at_index(0).grab_focus()
expect("the current row", lambda: "focused" in states(rows.get_child_at_index(0)))
rows.select_child(2)
expect("the marked rows", lambda: [row for row in range(3) if rows.is_child_selected(row)], [2])
expect("the name of each", lambda: [rows.get_selected_child(index).get_name()
                                    for index in range(rows.get_n_selected_children())],
       ["copper: Not used"])
expect("a mark", lambda: "selected" in states(rows.get_child_at_index(2)))

act(find("table cell", "CU"), "activate")
expect("what is heard", lambda: heard[1:], ["hole: HOLE", 0, "copper: CU", 0, "gold: Not used"])
expect("the rows", lambda: names(rows)[:3], ["hole: HOLE", "gold: Not used", "copper: CU"])
expect("a mark at a column in use", lambda: find("table cell", "CU, in use") is not None)
expect("the next row", lambda: "focused" in states(rows.get_child_at_index(1)))

find("push button", "OK").grab_focus()
expect("the next row without the keys", lambda: "focused" in states(rows.get_child_at_index(1)),
       False)
act(find("push button", "OK"), "click")
