#!/usr/bin/python3
"""Measures every model of a folder and writes the figures into its card.

Usage: measure_models.py LEXIFORM-TRAIN MODELS CORPORA

Runs `evaluate` for each <code>.lxm in MODELS, all of them beside one another as the engine has them, and puts
the rows of the table of MODELS/README.md anew. Its languages keep their names and their order; a model that it
does not have comes last, by its code. Exit 1 where one cannot be measured; the card then stays as it is.
"""
import pathlib
import re
import subprocess
import sys

HEADER = "| language | treebank |"
TOKEN_COLUMNS = ("pos", "names")
TEXT_COLUMNS = ("tokens", "sentences", "pos", "class", "lemmas", "names")


def figures_of(line, columns):
    """The figures of a line of `evaluate`, in the order of columns; empty where it has none."""
    found = dict(re.findall(r"(\w+) ([\d.]+)", line.partition(":")[2]))
    return [found.get(column, "") for column in columns]


def treebanks_of(output):
    """The treebanks that `evaluate` prints, each with its row of figures."""
    rows = []
    for line in output.splitlines():
        if line.startswith("  gold tokens:"):
            rows[-1][1][:2] = figures_of(line, TOKEN_COLUMNS)
        elif line.startswith("  raw text:"):
            rows[-1][1][2:] = figures_of(line, TEXT_COLUMNS)
        elif line and not line.startswith(" "):
            rows.append((line.removesuffix("-dev"), [""] * 8))
    return [(name, figures) for name, figures in rows if any(figures)]


def languages_of(rows):
    """The names of the languages of a table by their codes, in its order."""
    names = {}
    for row in rows:
        language, treebank = [cell.strip() for cell in row.split("|")[1:3]]
        if language:
            names[treebank.partition("_")[0]] = language
    return names


def rows_of(language, treebanks):
    """A language's rows of the table; the first one has its name."""
    cells = [[language if at == 0 else "", name, *figures] for at, (name, figures) in enumerate(treebanks)]
    return ["|" + "|".join(f" {cell} " for cell in row) + "|" for row in cells]


def with_figures(card, measure, codes):
    """The card with new rows. `measure` gives the output of `evaluate` for a code, of which there are `codes`."""
    lines = card.splitlines()
    start = next(at for at, line in enumerate(lines) if line.startswith(HEADER)) + 2
    end = next((at for at in range(start, len(lines)) if not lines[at].startswith("|")), len(lines))
    names = languages_of(lines[start:end])
    order = [code for code in names if code in codes] + sorted(set(codes) - set(names))
    rows = [row for code in order for row in rows_of(names.get(code, code), treebanks_of(measure(code)))]
    return "\n".join(lines[:start] + rows + lines[end:]) + "\n"


def main():
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    trainer, models, corpora = sys.argv[1], pathlib.Path(sys.argv[2]), sys.argv[3]

    def measure(code):
        print(code, file=sys.stderr)
        done = subprocess.run([trainer, "evaluate", "--model", models / f"{code}.lxm", "--corpora", corpora],
                              check=True, stdout=subprocess.PIPE, encoding="utf-8")
        return done.stdout

    card = models / "README.md"
    codes = [file.stem for file in models.glob("*.lxm")]
    try:
        written = with_figures(card.read_text("utf-8"), measure, codes)
    except subprocess.CalledProcessError as fault:
        sys.exit(f"measure_models.py: {fault}")
    card.write_text(written, "utf-8")


if __name__ == "__main__":
    main()
