#!/usr/bin/env python3
"""Walks through the program's window as a screen reader does, from outside, over AT-SPI.

Usage: finds_controls_by_name.py PROGRAM FILE MODELS

Passes when every control is found by its name and role, no control that takes the keyboard is without a name,
and the output can be read.
"""

import os
import shutil
import subprocess
import sys
import tempfile
import time

SECONDS_TO_OPEN = 60
SCREEN = "1280x800x24"
CONTROLS = {
    ("menu item", name) for name in ("File", "Edit", "Text", "View", "Tools", "Window", "Help")
} | {
    ("push button", name) for name in ("Parse", "Multi-parse", "List words", "Save list…")
} | {
    ("combo box", "Show"),
    ("text", "Input"), ("text", "Output"), ("text", "Key"), ("text", "Concordance"),
}


def missing_tools():
    missing = [tool for tool in ("xvfb-run", "dbus-run-session") if not shutil.which(tool)]
    try:
        import pyatspi  # noqa: F401
    except ImportError:
        missing.append("python3-pyatspi")
    return missing


def run_on_own_desktop():
    """On an X server and a session bus of its own, where the accessibility bus starts when it is asked for."""
    command = ["dbus-run-session", "--", "xvfb-run", "--auto-servernum",
               f"--server-args=-screen 0 {SCREEN} -noreset",
               sys.executable, os.path.abspath(__file__), "--inside", *sys.argv[1:]]
    return subprocess.run(command, check=False).returncode


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


def wait_for(condition, program, what):
    deadline = time.monotonic() + SECONDS_TO_OPEN
    while time.monotonic() < deadline:
        if program.poll() is not None:
            sys.exit(f"the program ended with {program.returncode} before {what}")
        if result := condition():
            return result
        time.sleep(0.3)
    sys.exit(f"no {what} within {SECONDS_TO_OPEN} seconds")


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
    with tempfile.TemporaryDirectory() as home:
        environment = dict(os.environ, HOME=home, XDG_CONFIG_HOME=home, XDG_STATE_HOME=home, LC_ALL="C.UTF-8",
                           LEXIFORM_MODELS=models, QT_QPA_PLATFORM="xcb", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        with subprocess.Popen([program_path, file], env=environment) as program:
            try:
                title = os.path.basename(file)
                window = wait_for(lambda: window_titled(title), program, f'window named "{title}"')
                wait_for(lambda: len(controls_of(window)) >= len(CONTROLS), program, "controls")
                check(window, text)
            finally:
                program.terminate()
    print("every control was found by its name")


def main():
    if sys.argv[1] == "--inside":
        walk(*sys.argv[2:])
        return 0
    if missing := missing_tools():
        sys.exit("not installed: " + ", ".join(missing))
    return run_on_own_desktop()


if __name__ == "__main__":
    sys.exit(main())
