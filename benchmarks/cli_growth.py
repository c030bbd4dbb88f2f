#!/usr/bin/env python3
"""Measures how the command line's time and memory grow with a text: cli_growth.py LEXIFORM-CLI TEXT [RUNS].

The text is repeated or cut to 0.1, 1, 10 and 100 MB. Prints for each size the best of several runs of
`lexiform-cli tag`, with one and with two jobs, with start-up and writing, and the peak memory; and first how long
the program takes for a text of one word.
"""
import os
import subprocess
import sys
import tempfile
import time

SIZES = [100_000, 1_000_000, 10_000_000, 100_000_000]


def measured(command):
    """Seconds and peak memory in MB of one run."""
    began = time.monotonic()
    child = subprocess.Popen(command, stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(child.pid, 0)
    if status != 0:
        sys.exit(f"{command} failed")
    return time.monotonic() - began, usage.ru_maxrss / 1024


def best(command, runs):
    results = [measured(command) for _ in range(runs)]
    return min(seconds for seconds, _ in results), max(memory for _, memory in results)


def write_text(path, source, size):
    with open(path, "wb") as file:
        while size > 0:
            file.write(source[:size])
            size -= len(source)


def main():
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    executable, runs = sys.argv[1], int(sys.argv[3]) if len(sys.argv) == 4 else 3
    with open(sys.argv[2], "rb") as file:
        source = file.read()
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "text")
        write_text(path, b"Walking.\n", 9)
        seconds, memory = best([executable, "tag", path], 4 * runs)
        print(f"one word   {seconds * 1000:8.0f} ms  {memory:5.0f} MB")
        print("size           one job              two jobs")
        for size in SIZES:
            write_text(path, source, size)
            figures = [best([executable, "tag", "--jobs", jobs, path], runs) for jobs in ("1", "2")]
            cells = [f"{seconds:8.2f} s {memory:5.0f} MB" for seconds, memory in figures]
            print(f"{size / 1e6:6.1f} MB  " + "   ".join(cells))


if __name__ == "__main__":
    main()
