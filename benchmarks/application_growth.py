#!/usr/bin/env python3
"""Measures the real application on texts of growing length: application_growth.py EXECUTABLE TEXT [RUNS].

The text is repeated or cut to 0.1, 1, 3.3 and 20 MB of whole lines. Each is opened on an X server of its own and
worked on by keys alone (xdotool must be installed). Prints for each size the best of several runs, in seconds:
from the start of the process to the first verb in its colour on the screen; from the key of parsing, of
multi-parsing and of listing the words until the program rests again; from the key of saving until the file is
replaced. Behind the passes stands the peak memory of each, less what the process had before it.
"""
import mmap
import os
import subprocess
import sys
import tempfile
import time

from start_to_colour import VERB_ON_LIGHT, start_server

SIZES = [100_000, 1_000_000, 3_300_000, 20_000_000]
PATIENCE = 120.0
# A program that has worked for at most this share of the last stretch rests; a caret blinks now and then.
STRETCH = 0.3
SHARE = 0.1
TICK = 1 / os.sysconf("SC_CLK_TCK")


class Process:
    """What the system tells of a running process."""

    def __init__(self, pid):
        self.folder = f"/proc/{pid}/"

    def worked(self):
        """Seconds of processor time so far."""
        with open(self.folder + "stat", encoding="ascii") as stat:
            fields = stat.read().rsplit(")", 1)[1].split()
        return (int(fields[11]) + int(fields[12])) * TICK

    def megabytes(self, name):
        with open(self.folder + "status", encoding="ascii") as status:
            return next(int(line.split()[1]) / 1024 for line in status if line.startswith(name + ":"))

    def forget_peak(self):
        with open(self.folder + "clear_refs", "w", encoding="ascii") as clear:
            clear.write("5")


def wait_until(condition, what):
    """The moment at which the condition held."""
    began = time.monotonic()
    while not condition():
        if time.monotonic() - began > PATIENCE:
            raise RuntimeError(f"{what} did not come")
        time.sleep(0.002)
    return time.monotonic()


def wait_for_rest(process):
    """The moment at which the process did its last work before a stretch of rest."""
    samples = [(time.monotonic(), process.worked())]
    began = samples[0][0]
    while True:
        time.sleep(0.01)
        now = (time.monotonic(), process.worked())
        samples.append(now)
        if now[0] - began > PATIENCE:
            raise RuntimeError("the program does not rest")
        if now[0] - began < STRETCH:
            continue
        before = next(sample for sample in reversed(samples) if now[0] - sample[0] >= STRETCH)
        if now[1] - before[1] <= SHARE * STRETCH:
            return before[0]


class Session:
    """The application on a display of its own with one text open."""

    def __init__(self, executable, text, folder):
        self.text = text
        self.server, display = start_server(folder)
        self.environment = dict(os.environ, DISPLAY=display, QT_QPA_PLATFORM="xcb", XDG_CONFIG_HOME=folder,
                                XDG_STATE_HOME=folder, XDG_DATA_HOME=folder)
        with open(os.path.join(folder, "Xvfb_screen0"), "rb") as screen_file:
            screen = mmap.mmap(screen_file.fileno(), 0, access=mmap.ACCESS_READ)
        began = time.monotonic()
        self.application = subprocess.Popen([executable, text], env=self.environment, stderr=subprocess.DEVNULL)
        self.process = Process(self.application.pid)
        self.start = wait_until(lambda: screen.find(VERB_ON_LIGHT) >= 0, "coloured text") - began
        wait_for_rest(self.process)

    def press(self, keys):
        """Presses keys in the window of the text; the moment before."""
        window = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", os.path.basename(self.text)],
                                env=self.environment, capture_output=True, text=True, check=True).stdout.split()[0]
        subprocess.run(["xdotool", "windowfocus", "--sync", window], env=self.environment, check=True)
        time.sleep(0.5)
        began = time.monotonic()
        subprocess.run(["xdotool", "key", keys], env=self.environment, check=True)
        return began

    def work(self, keys):
        """Seconds of a command and the megabytes that it needed at most."""
        self.process.forget_peak()
        before = self.process.megabytes("VmRSS")
        worked = self.process.worked()
        began = self.press(keys)
        wait_until(lambda: self.process.worked() - worked > TICK, f"work after {keys}")
        seconds = wait_for_rest(self.process) - began
        return seconds, self.process.megabytes("VmHWM") - before

    def save(self):
        """Seconds until the file of the text was replaced."""
        old = os.stat(self.text).st_mtime_ns
        began = self.press("ctrl+s")
        return wait_until(lambda: os.stat(self.text).st_mtime_ns != old, "the saved file") - began

    def end(self):
        for process in (self.application, self.server):
            process.kill()
            process.wait()


def measure(executable, text):
    with tempfile.TemporaryDirectory() as folder:
        session = Session(executable, text, folder)
        try:
            return [(session.start, 0), session.work("F5"), session.work("ctrl+shift+r"), session.work("ctrl+l")]
        finally:
            session.end()


def measure_saving(executable, text):
    with tempfile.TemporaryDirectory() as folder:
        session = Session(executable, text, folder)
        try:
            return session.save()
        finally:
            session.end()


def text_of(source, size):
    whole = (source * (size // len(source) + 1))[:size]
    return whole[:whole.rfind(b"\n") + 1]


def main():
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    executable, runs = sys.argv[1], int(sys.argv[3]) if len(sys.argv) == 4 else 3
    with open(sys.argv[2], "rb") as file:
        source = file.read()
    print("            start        parse           multi-parse     list            save")
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "text.txt")
        for size in SIZES:
            with open(path, "wb") as file:
                file.write(text_of(source, size))
            results = [measure(executable, path) for _ in range(runs)]
            best = [min(steps) for steps in zip(*results)]
            saving = min(measure_saving(executable, path) for _ in range(runs))
            cells = [f"{seconds:6.2f} s {memory:4.0f} MB" for seconds, memory in best[1:]]
            cells = [f"{best[0][0]:6.2f} s", *cells, f"{saving:6.2f} s"]
            print(f"{size / 1e6:6.1f} MB  " + "  ".join(cells), flush=True)


if __name__ == "__main__":
    main()
