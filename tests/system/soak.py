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
import tempfile
import time

from own_screen import give_keyboard_to, run_on_own_screen, running, windows_titled, xdotool

SECONDS_A_STEP = 120
VIEWS = 4
BASE = "base.txt"  # the window that stays
INPUT_PANE, POP_UP = (300, 300), (740, 52)
# Of the growth, what the allocator's own rhythm explains.
TOLERATED_GROWTH = 1.03
# Tells of the machine it runs on, not of the program.
HARMLESS = re.compile(r"XDG_RUNTIME_DIR|propagateSizeHints")


class Person:
    """Works the program with mouse and keyboard, and waits after each step until it has nothing more to do."""

    def __init__(self, program):
        self.program = program

    def processor_time(self):
        with open(f"/proc/{self.program.process.pid}/stat", encoding="utf-8") as stat:
            return sum(map(int, stat.read().rsplit(")", 1)[1].split()[11:13]))

    def rest(self):
        time.sleep(0.2)
        before = None
        while before != (before := self.processor_time()):
            time.sleep(0.3)

    def wait_for(self, condition, what):
        return self.program.wait_for(condition, what, SECONDS_A_STEP)

    def give_keyboard_to(self, title):
        window = self.wait_for(lambda: windows_titled(title), f"window “{title}”")[-1]
        give_keyboard_to(window)
        return window

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

    def open_document(self, path):
        self.give_keyboard_to(BASE)
        self.press("ctrl+o")
        self.give_keyboard_to("Open")
        self.write(path)
        self.press("Return")
        self.wait_for(lambda: windows_titled(os.path.basename(path)), "opened document")
        self.rest()

    def choose_each_view(self, window):
        for _ in range(VIEWS):
            self.click(window, POP_UP)
            self.press("Down", "Return")

    def work_on(self, path, number):
        name = os.path.basename(path)
        window = self.give_keyboard_to(name)
        self.click(window, INPUT_PANE)
        self.press("ctrl+Home")
        self.write(f"Round {number}: the cat sat. ")
        self.press("ctrl+r", "ctrl+shift+r")
        self.choose_each_view(window)
        self.give_keyboard_to(name)
        self.press("ctrl+l", "ctrl+r", "ctrl+s")
        self.wait_for(lambda: self.has_saved(path, number), "saved text")
        self.press("ctrl+w")
        self.wait_for(lambda: not windows_titled(name), "end of the window")

    def has_saved(self, path, number):
        """Parses and saves anew where the program asks whether to save a view: a busy machine loses keys."""
        if f"Round {number}:" in open(path, encoding="utf-8").read():
            return True
        if windows_titled("Lexiform"):
            self.give_keyboard_to("Lexiform")
            self.press("Escape")
            self.give_keyboard_to(os.path.basename(path))
            self.press("ctrl+r", "ctrl+s")
        return False


def measure(pid):
    """Resident megabytes, threads, open files."""
    with open(f"/proc/{pid}/status", encoding="utf-8") as status:
        fields = dict(line.split(":", 1) for line in status)
    return (int(fields["VmRSS"].split()[0]) / 1024, int(fields["Threads"]),
            len(os.listdir(f"/proc/{pid}/fd")))


def soak(program, text, minutes):
    """The resident megabytes behind each round."""
    person = Person(program)
    path = os.path.join(program.home, "document.txt")
    began = time.monotonic()
    said, memory = -1, []
    while time.monotonic() < began + 60 * minutes:
        shutil.copyfile(text, path)
        person.open_document(path)
        person.work_on(path, len(memory))
        megabytes, threads, files = measure(program.process.pid)
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


def run(path, models, text, minutes):
    with tempfile.TemporaryDirectory() as folder, tempfile.TemporaryFile("w+", encoding="utf-8") as errors:
        base = os.path.join(folder, BASE)
        with open(base, "w", encoding="utf-8") as file:
            file.write("The cat sat.\n")
        with running([path, base], models, stderr=errors) as program:
            memory = soak(program, text, float(minutes))
        errors.seek(0)
        return verdict(memory, errors.readlines())


if __name__ == "__main__":
    run_on_own_screen(run)
