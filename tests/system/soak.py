#!/usr/bin/env python3
"""Works with the program for a while, as a person does, and looks whether its memory stays flat.

Usage: soak.py PROGRAM MODELS TEXT MINUTES

Each round opens a copy of TEXT, writes into it, parses, multi-parses, goes through the views, lists the words,
parses again, saves and closes the window. A line a minute tells of the program's memory, threads and open files.
Fails when a step does not happen, when the program says anything on standard error, or when the last quarter of
the time needs more memory than the second one by over 3 %.
"""

import os
import re
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

SECONDS_A_STEP = 120
VIEWS = 4
INPUT_PANE, POP_UP = (300, 300), (740, 52)
# Of the growth, what the allocator's own rhythm explains.
TOLERATED_GROWTH = 1.03
# Tells of the machine it runs on, not of the program.
HARMLESS = re.compile(r"XDG_RUNTIME_DIR|propagateSizeHints")


def xdotool(*arguments):
    return subprocess.run(["xdotool", *map(str, arguments)], capture_output=True, text=True, check=False).stdout


def windows_titled(title):
    return xdotool("search", "--onlyvisible", "--name", f"^{re.escape(title)}$").split()


def titles_on_screen():
    return [xdotool("getwindowname", window).strip() for window in
            xdotool("search", "--onlyvisible", "--name", ".+").split()]


def wait_for(condition, what):
    deadline = time.monotonic() + SECONDS_A_STEP
    while time.monotonic() < deadline:
        found = condition()
        if found:
            return found
        time.sleep(0.1)
    sys.exit(f"waited in vain for {what}; on screen: {titles_on_screen()}")


def give_keyboard_to(title):
    # There is no window manager that would.
    window = wait_for(lambda: windows_titled(title), f"a window “{title}”")[-1]
    xdotool("windowraise", window)
    xdotool("windowfocus", "--sync", window)
    return window


class Person:
    """Works the program with mouse and keyboard, and waits after each step until it has nothing more to do."""

    def __init__(self, process):
        self.process = process

    def processor_time(self):
        with open(f"/proc/{self.process.pid}/stat", encoding="utf-8") as stat:
            return sum(map(int, stat.read().rsplit(")", 1)[1].split()[11:13]))

    def rest(self):
        time.sleep(0.2)
        before = None
        while before != (before := self.processor_time()):
            time.sleep(0.3)

    def click(self, window, place):
        xdotool("mousemove", "--window", window, *place, "click", 1)
        self.rest()

    def press(self, *keys):
        for key in keys:
            xdotool("key", key)
            self.rest()

    def write(self, text):
        xdotool("type", text)
        self.rest()

    def open_document(self, path, base):
        give_keyboard_to(base)
        self.press("ctrl+o")
        give_keyboard_to("Open")
        self.write(path)
        self.press("Return")
        wait_for(lambda: windows_titled(os.path.basename(path)), "the opened document")
        self.rest()

    def choose_each_view(self, window):
        for _ in range(VIEWS):
            self.click(window, POP_UP)
            self.press("Down", "Return")

    def work_on(self, path, number):
        name = os.path.basename(path)
        window = give_keyboard_to(name)
        self.click(window, INPUT_PANE)
        self.press("ctrl+Home")
        self.write(f"Round {number}: the cat sat. ")
        self.press("ctrl+r", "ctrl+shift+r")
        self.choose_each_view(window)
        give_keyboard_to(name)
        self.press("ctrl+l", "ctrl+r", "ctrl+s")
        wait_for(lambda: self.has_saved(path, number), "the saved text")
        self.press("ctrl+w")
        wait_for(lambda: not windows_titled(name), "the window's end")

    def has_saved(self, path, number):
        """Parses and saves anew where the program asks whether to save a view: a busy machine loses keys."""
        if f"Round {number}:" in open(path, encoding="utf-8").read():
            return True
        if windows_titled("Lexiform"):
            give_keyboard_to("Lexiform")
            self.press("Escape")
            give_keyboard_to(os.path.basename(path))
            self.press("ctrl+r", "ctrl+s")
        return False


def measure(process):
    """Resident megabytes, threads, open files."""
    with open(f"/proc/{process.pid}/status", encoding="utf-8") as status:
        fields = dict(line.split(":", 1) for line in status)
    return (int(fields["VmRSS"].split()[0]) / 1024, int(fields["Threads"]),
            len(os.listdir(f"/proc/{process.pid}/fd")))


def soak(process, folder, text, minutes):
    """The resident megabytes behind each round."""
    person = Person(process)
    base, path = "base.txt", os.path.join(folder, "document.txt")
    began = time.monotonic()
    said, memory = -1, []
    while time.monotonic() < began + 60 * minutes:
        shutil.copyfile(text, path)
        person.open_document(path, base)
        person.work_on(path, len(memory))
        if process.poll() is not None:
            sys.exit(f"the program ended with {process.returncode}")
        megabytes, threads, files = measure(process)
        memory.append(megabytes)
        minute = int((time.monotonic() - began) / 60)
        if minute > said:
            said = minute
            print(f"minute {minute}: {len(memory)} rounds, {megabytes:.1f} MB, {threads} threads, {files} files",
                  flush=True)
    return memory


def verdict(memory, errors):
    quarter = max(1, len(memory) // 4)
    before = statistics.median(memory[quarter:2 * quarter] or memory)
    after = statistics.median(memory[-quarter:])
    print(f"{len(memory)} rounds; {before:.1f} MB in the second quarter, {after:.1f} MB in the last")
    spoken = [line for line in errors if line.strip() and not HARMLESS.search(line)]
    print("standard error:", "nothing" if not spoken else "".join(spoken[:20]))
    return 0 if not spoken and after <= before * TOLERATED_GROWTH else 1


def run(program, models, text, minutes):
    with tempfile.TemporaryDirectory() as folder, open(os.path.join(folder, "errors"), "w+",
                                                       encoding="utf-8") as errors:
        base = os.path.join(folder, "base.txt")
        with open(base, "w", encoding="utf-8") as file:
            file.write("The cat sat.\n")
        environment = dict(os.environ, HOME=folder, XDG_CONFIG_HOME=folder, XDG_STATE_HOME=folder,
                           XDG_RUNTIME_DIR=folder, LEXIFORM_MODELS=models, QT_QPA_PLATFORM="xcb")
        process = subprocess.Popen([program, base], env=environment, stderr=errors)
        try:
            memory = soak(process, folder, text, float(minutes))
        finally:
            process.terminate()
            process.wait()
        errors.seek(0)
        return verdict(memory, errors.readlines())


def main():
    if sys.argv[1] == "--inside":
        return run(*sys.argv[2:])
    missing = [tool for tool in ("xvfb-run", "xdotool") if not shutil.which(tool)]
    if missing:
        sys.exit("not installed: " + ", ".join(missing))
    command = ["xvfb-run", "--auto-servernum", "--server-args=-screen 0 1280x800x24 -noreset",
               sys.executable, os.path.abspath(__file__), "--inside", *sys.argv[1:]]
    return subprocess.run(command, check=False).returncode


if __name__ == "__main__":
    sys.exit(main())
