#!/usr/bin/env python3
"""Starts the program where no window can be shown, and looks how it ends: with words and a failure status.

Usage: ends_without_display.py PROGRAM
"""

import os
import subprocess
import sys
import tempfile

ABOUT_DISPLAYS = ("DISPLAY", "WAYLAND_DISPLAY", "WAYLAND_SOCKET", "QT_QPA_PLATFORM", "XDG_SESSION_TYPE")
WORDS = "lexiform: There is no display to show windows on."
CASES = {
    "no display": {},
    "an X server that is not there": {"DISPLAY": ":59999"},
    "a Wayland display that is not there": {"WAYLAND_DISPLAY": "nowhere"},
    "a Wayland session without its display": {"XDG_SESSION_TYPE": "wayland"},
    "neither of two": {"DISPLAY": ":59999", "WAYLAND_DISPLAY": "nowhere"},
    "a platform that Qt does not have": {"QT_QPA_PLATFORM": "nonsense"},
}


def main(program):
    with tempfile.TemporaryDirectory() as home:
        plain = {name: value for name, value in os.environ.items() if name not in ABOUT_DISPLAYS}
        plain.update(HOME=home, XDG_CONFIG_HOME=home, XDG_STATE_HOME=home, XDG_RUNTIME_DIR=home)
        for name, variables in CASES.items():
            ended = subprocess.run([program], env={**plain, **variables}, capture_output=True, text=True,
                                   check=False, timeout=60)
            print(f"{name}: {ended.returncode}, {ended.stderr!r}", flush=True)
            if ended.returncode != 1 or not ended.stderr.splitlines()[-1].startswith(WORDS):
                sys.exit(f"{name}: words and status 1 were expected")


if __name__ == "__main__":
    main(*sys.argv[1:])
