#!/usr/bin/env python3
"""Walks through the program's window as a screen reader does, from outside, over AT-SPI.

Usage: finds_controls_by_name.py PROGRAM FILE MODELS

Passes when every control is found by its name and role, no control that takes the keyboard is without a name,
and the output can be read.
"""

import os
import sys

from own_screen import run_on_own_screen, running

CONTROLS = {
    ("menu item", name) for name in ("File", "Edit", "Text", "View", "Tools", "Window", "Help")
} | {
    ("push button", name) for name in ("Parse", "Multi-parse", "List words", "Save list…")
} | {
    ("combo box", "Show"),
    ("text", "Input"), ("text", "Output"), ("text", "Key"), ("text", "Concordance"),
}


def is_shown(node):
    import pyatspi
    return node.getState().contains(pyatspi.STATE_SHOWING)


def takes_keyboard(node):
    import pyatspi
    return node.getState().contains(pyatspi.STATE_FOCUSABLE)


def descendants(node):
    for child in node:
        if child is None:
            continue
        yield child
        yield from descendants(child)


def window_titled(title):
    import pyatspi
    for application in pyatspi.Registry.getDesktop(0):
        for window in application or ():
            if window is not None and window.name == title:
                return window
    return None


def controls_of(window):
    return [node for node in descendants(window) if is_shown(node)]


def spoken_name(node):
    """What a screen reader calls a control: on Linux, Qt names a box by what it shows and leaves the rest to a label."""
    import pyatspi
    labels = [relation.getTarget(0).name for relation in node.getRelationSet()
              if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY]
    return labels[0] if labels else node.name


def check(window, text):
    controls = controls_of(window)
    found = {(node.getRoleName(), spoken_name(node)) for node in controls}
    for role, name in sorted(found):
        print(f"{role}: {name}")
    if missing := CONTROLS - found:
        sys.exit(f"not found: {sorted(missing)}")
    # A menu item is reached through its menu, whose surroundings take the keyboard for it.
    nameless = [node.getRoleName() for node in controls if takes_keyboard(node) and not node.name]
    if nameless:
        sys.exit(f"without a name: {nameless}")
    box = next(node for node in controls if node.getRoleName() == "combo box")
    if box.name != "Types":
        sys.exit(f"the box shows {box.name!r}")
    output = next(node for node in controls if (node.getRoleName(), node.name) == ("text", "Output"))
    read = output.queryText().getText(0, -1)
    if read.split() != text.split():
        sys.exit(f"the output reads: {read!r}")


def walk(program_path, file, models):
    with open(file, encoding="utf-8") as source:
        text = source.read()
    title = os.path.basename(file)
    with running([program_path, file], models, LC_ALL="C.UTF-8", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1") as program:
        window = program.wait_for(lambda: window_titled(title), f'window named "{title}"')
        program.wait_for(lambda: len(controls_of(window)) >= len(CONTROLS), "controls")
        check(window, text)
    print("every control was found by its name")


if __name__ == "__main__":
    # The accessibility bus starts on a session bus of the test's own when it is asked for.
    run_on_own_screen(walk, around=("dbus-run-session", "--"))
