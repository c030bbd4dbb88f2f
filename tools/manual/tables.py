"""The tables of the manual that come from elsewhere: the menus' commands and the models' figures."""
import dataclasses
import html
import re


@dataclasses.dataclass
class Command:
    menu: str
    title: str
    keys: str
    meaning: str


def read_commands(path):
    """The commands that `commands.tsv` lists: menu, title, keys (or none), what it does, under one heading line."""
    lines = path.read_text(encoding="utf-8").splitlines()[1:]
    return [Command(*line.split("\t")) for line in lines if line]


def commands(all_commands, menu):
    """In HTML, for these tables have column widths of their own."""
    rows = [f"<tr><td>{html.escape(one.title)}</td><td>{keys_in_words(one.keys)}</td>"
            f"<td>{html.escape(one.meaning)}</td></tr>" for one in all_commands if one.menu == menu]
    head = "<tr><th>Command</th><th>Keys</th><th>What it does</th></tr>"
    return f'<table class="commands"><thead>{head}</thead><tbody>{"".join(rows)}</tbody></table>'


def keys_in_words(keys):
    return " or ".join(f"<kbd>{one}</kbd>" for one in keys.split(" or ")) if keys else ""


# Columns of the card's table: language, treebank, two on given tokens (classes, names), then on raw
# text tokens, sentences, parts of speech, classes, lemmas, names.
GIVEN_CLASS, GIVEN_NAMES, WORDS, SENTENCES, CLASS, LEMMAS, NAMES = 2, 3, 4, 5, 7, 8, 9


def accuracy(card):
    """One row a language, with the lowest and highest figure over the texts that it was measured on."""
    lines = ["| Language | Words | Sentences | Class | Lemma | Names |", "|---|---|---|---|---|---|"]
    for language, samples in samples_of(card).items():
        cells = [figures(samples, column, given) for column, given in
                 ((WORDS, None), (SENTENCES, None), (CLASS, GIVEN_CLASS), (LEMMAS, None), (NAMES, GIVEN_NAMES))]
        lines.append(f"| {language} | " + " | ".join(cells) + " |")
    return "\n".join(lines)


def samples_of(card):
    table = card[card.index("| language | treebank |"):].split("\n\n")[0]
    samples, language = {}, ""
    for line in table.splitlines()[2:]:
        cells = [cell.strip() for cell in line.strip().strip("|").split("|")]
        language = cells[0] or language
        samples.setdefault(language, []).append(cells)
    return samples


def figures(samples, column, given):
    """The span of a column's figures; of those on given words, with a star, where none is on plain text."""
    found = [cells[column] for cells in samples if re.match(r"\d", cells[column])]
    if found or given is None:
        return span(found)
    found = [cells[given] for cells in samples if re.match(r"\d", cells[given])]
    return span(found) + " \\*" if found else "–"


def span(found):
    if not found:
        return "–"
    low, high = (f"{edge(map(float, found)):.0f}" for edge in (min, max))
    return low if low == high else f"{low} to {high}"
