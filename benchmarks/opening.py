#!/usr/bin/env python3
"""Measures how opening a document grows with it: opening.py PROGRAMS TEXT [RUNS].

PROGRAMS is the folder of the built programs. The text is repeated or cut to 1, 10 and 100 MB of plain text and to
10 MB of RTF with a colour for every word. Prints for each the best time of several runs and the peak memory, each
run a process of its own: for the characters alone, for the window without colours, and for all.
"""
import os
import subprocess
import sys
import tempfile

MEGABYTE = 1_000_000
PLAIN_SIZES = [1, 10, 100]
RTF_SIZE = 10
STAGES = ["characters", "window", "colour"]


def plain_text(source, size):
    return (source * (size // len(source) + 1))[:size].decode(errors="ignore")


def write_rtf(programs, folder, source):
    """RTF of the wanted size, of as much text as that takes."""
    sample, path = os.path.join(folder, "sample.txt"), os.path.join(folder, "text.rtf")
    size = MEGABYTE
    for _ in range(2):  # the second time with the length that the first one tells
        with open(sample, "w", encoding="utf-8") as file:
            file.write(plain_text(source, size))
        with open(path, "wb") as rtf:
            subprocess.run([os.path.join(programs, "lexiform-cli"), "tag", "--format", "rtf", sample],
                           stdout=rtf, check=True)
        size = size * RTF_SIZE * MEGABYTE // os.path.getsize(path)
    return path


def files(programs, folder, source):
    for megabytes in PLAIN_SIZES:
        path = os.path.join(folder, f"{megabytes}.txt")
        with open(path, "w", encoding="utf-8") as file:
            file.write(plain_text(source, megabytes * MEGABYTE))
        yield "plain text", path
    yield "RTF", write_rtf(programs, folder, source)


def measured(program, stage, path):
    """Seconds and peak memory in MB of one run."""
    answer = subprocess.run([program, stage, path], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=True)
    seconds, memory = answer.stdout.split()
    return float(seconds), float(memory)


def main():
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    programs, runs = sys.argv[1], int(sys.argv[3]) if len(sys.argv) == 4 else 3
    with open(sys.argv[2], "rb") as file:
        source = file.read()
    with tempfile.TemporaryDirectory() as folder:
        for kind, path in files(programs, folder, source):
            for stage in STAGES:
                results = [measured(os.path.join(programs, "qt-opening-benchmark"), stage, path) for _ in range(runs)]
                print(f"{kind:10} {os.path.getsize(path) / MEGABYTE:6.1f} MB  {stage:10}"
                      f" {min(seconds for seconds, _ in results):8.3f} s"
                      f"  peak {min(memory for _, memory in results):5.0f} MB", flush=True)


if __name__ == "__main__":
    main()
