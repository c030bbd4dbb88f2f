#!/usr/bin/env python3
"""Measures the command line on a text: cli_throughput.py LEXIFORM-CLI TEXT [RUNS].

Prints the best of several runs of `lexiform-cli tag`, start-up and writing included, one thread: tokens
(white space is none) and megabytes a second, and the peak memory.
"""
import os
import resource
import subprocess
import sys
import time


def tokens_of(executable, text):
    lines = subprocess.run([executable, "tag", text], check=True, stdout=subprocess.PIPE).stdout.splitlines()
    return sum(1 for line in lines if line[:1].isdigit())


def seconds_for(executable, text):
    began = time.monotonic()
    subprocess.run([executable, "tag", text], check=True, stdout=subprocess.DEVNULL)
    return time.monotonic() - began


def main():
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    executable, text = sys.argv[1], sys.argv[2]
    best = min(seconds_for(executable, text) for _ in range(int(sys.argv[3]) if len(sys.argv) == 4 else 5))
    peak = resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss / 1024
    tokens, size = tokens_of(executable, text), os.path.getsize(text) / 1e6
    print(f"text            {size:.2f} MB, {tokens / 1e3:.0f} thousand tokens")
    print(f"best time       {best:.3f} s")
    print(f"throughput      {tokens / best / 1e3:.0f} thousand tokens/s, {size / best:.1f} MB/s")
    print(f"peak memory     {peak:.0f} MB")


if __name__ == "__main__":
    main()
