#!/usr/bin/env python3
"""Starts the program with a file on an X server of its own and looks at its window.

Usage: shows_a_file_in_colour.py PROGRAM FILE MODELS

Passes when a window with the file's name for its title shows words in several class colours.
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import time

SECONDS_TO_OPEN = 60
SCREEN = "1280x800x24"
# The class colours on a light pane.
CLASS_COLOURS = {
    "noun": (0x00, 0x55, 0xD4),
    "verb": (0xD7, 0x00, 0x15),
    "adjective": (0x1A, 0x7F, 0x37),
    "adverb": (0x8A, 0x3F, 0xB0),
    "pronoun": (0x8A, 0x6A, 0x00),
    "determiner": (0x7A, 0x52, 0x30),
    "preposition": (0xD3, 0x0F, 0x6E),
    "conjunction": (0xB8, 0x4A, 0x00),
}
COLOURS_WANTED = 6
PIXELS_WANTED = 15
TOLERANCE = 12  # the strokes of letters are softened
# The swatches of the key would pass for words: only the left part of the window counts.
PART_WITH_WORDS = 0.66


def missing_tools():
    return [tool for tool in ("xvfb-run", "xwininfo", "import") if not shutil.which(tool)]


def run_on_own_server():
    command = ["xvfb-run", "--auto-servernum", f"--server-args=-screen 0 {SCREEN} -noreset",
               sys.executable, os.path.abspath(__file__), "--inside", *sys.argv[1:]]
    return subprocess.run(command, check=False).returncode


def window_titled(title):
    """The id of the window with exactly this title, or None."""
    found = subprocess.run(["xwininfo", "-name", title], capture_output=True, text=True, check=False)
    match = re.search(r'Window id: (0x[0-9a-f]+) "(.*)"$', found.stdout, re.MULTILINE)
    return match.group(1) if match and match.group(2) == title else None


def picture_of(window):
    """Width, height and RGB bytes of a window on screen."""
    data = subprocess.run(["import", "-window", window, "-depth", "8", "ppm:-"],
                          capture_output=True, check=True).stdout
    header = re.match(rb"P6\s+(\d+)\s+(\d+)\s+255\s", data)
    return int(header.group(1)), int(header.group(2)), data[header.end():]


def colours_in(window):
    """How many pixels of the panes with words have each class colour, or nearly."""
    width, height, pixels = picture_of(window)
    counts = dict.fromkeys(CLASS_COLOURS, 0)
    for y in range(height):
        row = pixels[3 * width * y:3 * width * y + 3 * int(width * PART_WITH_WORDS)]
        for at in range(0, len(row), 3):
            if min(row[at:at + 3]) == max(row[at:at + 3]):
                continue  # white and the greys, most of the picture
            for name, colour in CLASS_COLOURS.items():
                if all(abs(row[at + i] - colour[i]) <= TOLERANCE for i in range(3)):
                    counts[name] += 1
    return counts


def wait_for(condition, program, what):
    deadline = time.monotonic() + SECONDS_TO_OPEN
    while time.monotonic() < deadline:
        if program.poll() is not None:
            sys.exit(f"the program ended with {program.returncode} before {what}")
        result = condition()
        if result:
            return result
        time.sleep(0.2)
    sys.exit(f"no {what} within {SECONDS_TO_OPEN} seconds")


def enough_colours(window):
    counts = colours_in(window)
    print(counts, flush=True)
    return sum(count >= PIXELS_WANTED for count in counts.values()) >= COLOURS_WANTED


def look(program_path, file, models):
    if not os.path.exists(os.path.join(models, "en.lxm")):
        sys.exit(f"no model of English in {models}")
    with tempfile.TemporaryDirectory() as home:
        environment = dict(os.environ, HOME=home, XDG_CONFIG_HOME=home, XDG_RUNTIME_DIR=home,
                           LEXIFORM_MODELS=models, QT_QPA_PLATFORM="xcb", QT_SCALE_FACTOR="1")
        with subprocess.Popen([program_path, file], env=environment) as program:
            try:
                title = os.path.basename(file)
                window = wait_for(lambda: window_titled(title), program, f'window titled "{title}"')
                wait_for(lambda: enough_colours(window), program, "words in the class colours")
            finally:
                program.terminate()
    print(f'"{title}" is shown in colour')


def main():
    if sys.argv[1] == "--inside":
        look(*sys.argv[2:])
        return 0
    if missing := missing_tools():
        sys.exit("not installed: " + ", ".join(missing))
    return run_on_own_server()


if __name__ == "__main__":
    sys.exit(main())
