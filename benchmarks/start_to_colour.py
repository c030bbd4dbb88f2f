#!/usr/bin/env python3
"""Measures the real application on a text: start_to_colour.py EXECUTABLE TEXT [RUNS].

Starts the application on an X server of its own and watches the server's frame buffer, which costs the
application nothing. Prints the best of several runs: the time from the start of the process to the
first verb in its colour on the screen, and the peak memory a second later.
"""
import mmap
import os
import subprocess
import sys
import tempfile
import time

VERB_ON_LIGHT = bytes((0x15, 0x00, 0xD7))  # blue, green, red: the order of the frame buffer
PATIENCE = 60.0


def start_server(folder):
    """An X server whose screen is a file in `folder`; gives the process and its display."""
    read_end, write_end = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(write_end), "-screen", "0", "1280x800x24", "-fbdir", folder],
        pass_fds=[write_end], stderr=subprocess.DEVNULL)
    os.close(write_end)
    with os.fdopen(read_end) as answers:
        return server, ":" + answers.readline().strip()


def peak_memory(pid):
    """The peak resident memory of a process in megabytes."""
    with open(f"/proc/{pid}/status", encoding="ascii") as status:
        for line in status:
            if line.startswith("VmHWM:"):
                return int(line.split()[1]) / 1024
    raise RuntimeError("the process tells no peak memory")


def measure(executable, text):
    with tempfile.TemporaryDirectory() as folder:
        server, display = start_server(folder)
        environment = dict(os.environ, DISPLAY=display, XDG_CONFIG_HOME=folder, QT_QPA_PLATFORM="xcb")
        try:
            with open(os.path.join(folder, "Xvfb_screen0"), "rb") as screen_file:
                screen = mmap.mmap(screen_file.fileno(), 0, access=mmap.ACCESS_READ)
            began = time.monotonic()
            application = subprocess.Popen([executable, text], env=environment, stderr=subprocess.DEVNULL)
            try:
                while screen.find(VERB_ON_LIGHT) < 0:
                    if time.monotonic() - began > PATIENCE or application.poll() is not None:
                        raise RuntimeError("no coloured text came on the screen")
                    time.sleep(0.002)
                seconds = time.monotonic() - began
                time.sleep(1)
                return seconds, peak_memory(application.pid)
            finally:
                application.kill()
                application.wait()
        finally:
            server.kill()
            server.wait()


def main():
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    executable, text = sys.argv[1], sys.argv[2]
    runs = [measure(executable, text) for _ in range(int(sys.argv[3]) if len(sys.argv) == 4 else 5)]
    size = os.path.getsize(text) / 1e6
    print(f"text               {size:.2f} MB")
    print(f"start to colour    {min(seconds for seconds, _ in runs):.3f} s (best of {len(runs)})")
    print(f"peak memory        {min(megabytes for _, megabytes in runs):.0f} MB")


if __name__ == "__main__":
    main()
