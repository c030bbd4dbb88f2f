#!/usr/bin/env python3
"""Starts the program with a file on an X server of its own and looks at its window.

Usage: shows_a_file_in_colour.py PROGRAM FILE MODELS

Passes when a window with the file's name for its title shows words in several class colours.
"""

import os
import sys

from own_screen import picture_of, run_on_own_screen, running

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


def enough_colours(window):
    counts = colours_in(window)
    print(counts, flush=True)
    return sum(count >= PIXELS_WANTED for count in counts.values()) >= COLOURS_WANTED


def look(program_path, file, models):
    if not os.path.exists(os.path.join(models, "en.lxm")):
        sys.exit(f"no model of English in {models}")
    title = os.path.basename(file)
    with running([program_path, file], models) as program:
        window = program.window(title)
        program.wait_for(lambda: enough_colours(window), "words in the class colours")
    print(f'"{title}" is shown in colour')


if __name__ == "__main__":
    run_on_own_screen(look, "import")
