"""What the tests of this folder share: an X server of a test's own, the program on it, its windows, waiting."""

import contextlib
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time

SECONDS_TO_OPEN = 60


def run_on_own_screen(main, *tools, around=()):
    """Calls `main` with the script's arguments on an X server of its own, and ends the script.

    `tools` are programs that `main` needs, `around` a command that runs the X server's.
    """
    if sys.argv[1:2] == ["--inside"]:
        sys.exit(main(*sys.argv[2:]))
    missing = [tool for tool in ("xvfb-run", "xdotool", *around[:1], *tools) if not shutil.which(tool)]
    if missing:
        sys.exit("not installed: " + ", ".join(missing))
    command = [*around, "xvfb-run", "--auto-servernum", "--server-args=-screen 0 1280x800x24 -noreset",
               sys.executable, *sys.argv[:1], "--inside", *sys.argv[1:]]
    sys.exit(subprocess.run(command, check=False).returncode)


def soon(condition, seconds):
    """What `condition` gives once that is true, or what it gives at the end of so many seconds."""
    deadline = time.monotonic() + seconds
    while not (found := condition()) and time.monotonic() < deadline:
        time.sleep(0.1)
    return found


class Program:
    """The running program in a home of its own. Ending by itself, before its test does, is a failure."""

    def __init__(self, process, home):
        self.process, self.home = process, home

    def wait_for(self, condition, what, seconds=SECONDS_TO_OPEN):
        """What `condition` gives once that is true; without it, or without the program, the test fails."""
        found = soon(lambda: self.process.poll() is not None or condition(), seconds)
        if self.process.poll() is not None:
            sys.exit(f"the program ended with {self.process.returncode} before {what}")
        if not found:
            sys.exit(f"no {what} within {seconds} seconds; on screen: {titles_on_screen()}")
        return found

    def window(self, title):
        return self.wait_for(lambda: windows_titled(title), f'window "{title}"')[-1]


@contextlib.contextmanager
def running(command, models, stderr=None, **variables):
    """The program that `command` starts, with these models and environment variables besides."""
    with tempfile.TemporaryDirectory() as home:
        environment = dict(os.environ, HOME=home, XDG_CONFIG_HOME=home, XDG_STATE_HOME=home, XDG_RUNTIME_DIR=home,
                           LEXIFORM_MODELS=models, QT_QPA_PLATFORM="xcb", QT_SCALE_FACTOR="1", **variables)
        environment.pop("WAYLAND_DISPLAY", None)
        process = subprocess.Popen(command, env=environment, stderr=stderr)
        try:
            yield Program(process, home)
            if process.poll() is not None:
                sys.exit(f"the program ended by itself with {process.returncode}")
        finally:
            process.terminate()
            process.wait()


def xdotool(*arguments):
    return subprocess.run(["xdotool", *map(str, arguments)], capture_output=True, text=True, check=False).stdout


def windows_titled(title):
    """The windows on screen with exactly this title; programs have others that are never shown."""
    return xdotool("search", "--onlyvisible", "--name", f"^{re.escape(title)}$").split()


def titles_on_screen():
    return [xdotool("getwindowname", window).strip() for window in
            xdotool("search", "--onlyvisible", "--name", ".+").split()]


def give_keyboard_to(window):
    # There is no window manager that would.
    xdotool("windowraise", window)
    xdotool("windowfocus", "--sync", window)


def picture_of(window):
    """Width, height and RGB bytes of a window on screen."""
    data = subprocess.run(["import", "-window", window, "-depth", "8", "ppm:-"],
                          capture_output=True, check=True).stdout
    header = re.match(rb"P6\s+(\d+)\s+(\d+)\s+255\s", data)
    return int(header.group(1)), int(header.group(2)), data[header.end():]
