#!/usr/bin/python3
"""Holds the manual's examples of the command line against what it writes.

Usage: examples.py check|write LEXIFORM-CLI MANUAL

An example is a block of the chapters that starts with "    $ lexiform-cli"; what follows in the block
is its output. `check` prints every example whose output differs; exit 1. `write` corrects them.
"""
import difflib
import pathlib
import re
import shlex
import subprocess
import sys

INDENT = "    "
EXAMPLE = re.compile(r"^    \$ lexiform-cli (?P<arguments>.*)\n(?P<output>(?:    .*\n|\n(?=    ))*)", re.MULTILINE)


def run(program, arguments, folder):
    done = subprocess.run([program, *shlex.split(arguments)], cwd=folder, check=True, capture_output=True)
    return done.stdout.decode("utf-8").strip("\n")


def as_block(text):
    """The text as lines of a Markdown block, columns of tabs aligned; empty lines stay empty."""
    return "".join(f"{INDENT}{line}".rstrip() + "\n" for line in aligned(text.splitlines()))


def aligned(lines):
    rows = [line.split("\t") for line in lines]
    widths = [max(len(row[column]) for row in rows if len(row) > column + 1)
              for column in range(max(map(len, rows)) - 1)]
    return ["  ".join([cell.ljust(width) for cell, width in zip(row, widths)] + row[len(widths):])
            for row in rows]


def corrected(match, program, folder):
    arguments = match["arguments"]
    return f"{INDENT}$ lexiform-cli {arguments}\n" + as_block(run(program, arguments, folder))


def main(what, program, manual):
    program, manual = str(pathlib.Path(program).resolve()), pathlib.Path(manual)
    examples, differing = 0, 0
    for chapter in sorted((manual / "chapters").glob("*.md")):
        old = chapter.read_text(encoding="utf-8")
        new, found = EXAMPLE.subn(lambda match: corrected(match, program, manual / "texts"), old)
        examples += found
        if new == old:
            continue
        differing += 1
        if what == "write":
            chapter.write_text(new, encoding="utf-8")
        else:
            print("".join(difflib.unified_diff(old.splitlines(True), new.splitlines(True),
                                               str(chapter), "what the command writes")))
    print(f"{examples} examples, {differing} chapters {'corrected' if what == 'write' else 'differ'}")
    return 1 if examples == 0 or (differing and what == "check") else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
