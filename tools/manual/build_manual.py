#!/usr/bin/python3
"""Makes the manual, a PDF with contents, outline and links, from its chapters.

Usage: build_manual.py MANUAL MODEL-CARD VERSION PDF

MANUAL is resources/manual. Beside the PDF goes a file of its links for the window that shows it: a line each, with the
page, left, top, width and height of the link, the page and the top of its target, in points and from page 0.
Fails when a link leads nowhere or a picture is missing.
"""
import logging
import pathlib
import sys

import markdown
import weasyprint

import tables

EXTENSIONS = ["tables", "fenced_code", "attr_list", "toc", "smarty"]
POINTS_IN_PIXEL = 0.75
# British quotation marks stand in the chapters themselves; only dashes and dots are set here.
SETTINGS = {"smarty": {"smart_quotes": False}, "toc": {"toc_depth": "1-2"}}


class Complaints(logging.Handler):
    """Keeps what the typesetter complains about; it goes on with a page that lacks what is missing."""

    def __init__(self):
        super().__init__(logging.WARNING)
        self.messages = []

    def emit(self, record):
        self.messages.append(record.getMessage())


def chapters_of(manual):
    """The chapters as one Markdown text, in the order of their file names."""
    files = sorted((manual / "chapters").glob("*.md"))
    return "\n\n".join(file.read_text(encoding="utf-8") for file in files)


def with_tables(text, manual, card):
    text = text.replace("{{accuracy}}", tables.accuracy(card.read_text(encoding="utf-8")))
    commands = tables.read_commands(manual / "commands.tsv")
    for menu in {command.menu for command in commands}:
        text = text.replace("{{commands %s}}" % menu, tables.commands(commands, menu))
    if "{{" in text:
        sys.exit("no table for " + text[text.index("{{"):].split("}}")[0] + "}}")
    return text


def contents(entries, depth=1):
    """The nested list of contents; the style sheet adds the page numbers."""
    if not entries or depth > 2:
        return ""
    items = [f'<li><a href="#{entry["id"]}">{entry["name"]}</a>{contents(entry["children"], depth + 1)}</li>'
             for entry in entries]
    return f'<ul>{"".join(items)}</ul>'


def page(text, version):
    converter = markdown.Markdown(extensions=EXTENSIONS, extension_configs=SETTINGS, output_format="html")
    body = converter.convert(text)
    return f"""<!DOCTYPE html>
<html lang="en-GB"><head><meta charset="utf-8"><title>Lexiform: the manual</title></head>
<body>
<header><img src="../icons/lexiform.svg" alt=""><p class="title">Lexiform</p>
<p class="subtitle">The manual</p><p class="version">Version {version}</p></header>
<nav><p class="nav-title">Contents</p>{contents(converter.toc_tokens)}</nav>
{body}
</body></html>"""


def links_of(pages):
    """The links from place to place in the document, a line each."""
    targets = {}
    for number, each in enumerate(pages):
        for name, (_, top) in each.anchors.items():
            targets.setdefault(name, (number, top))
    for number, each in enumerate(pages):
        for kind, name, (left, top, right, bottom), _ in each.links:
            if kind == "internal":
                target, target_top = targets[name]
                place = (length * POINTS_IN_PIXEL for length in (left, top, right - left, bottom - top))
                yield "\t".join([str(number), *(f"{length:.1f}" for length in place), str(target),
                                 f"{target_top * POINTS_IN_PIXEL:.1f}"])


def main(manual, card, version, pdf):
    manual, card = pathlib.Path(manual).resolve(), pathlib.Path(card)
    complaints = Complaints()
    logging.getLogger("weasyprint").addHandler(complaints)
    html = page(with_tables(chapters_of(manual), manual, card), version)
    document = weasyprint.HTML(string=html, base_url=str(manual) + "/")
    document = document.render(stylesheets=[str(manual / "manual.css")])
    made = document.write_pdf()
    if complaints.messages:
        sys.exit("\n".join(complaints.messages))
    pathlib.Path(pdf).parent.mkdir(parents=True, exist_ok=True)
    pathlib.Path(pdf).write_bytes(made)
    links = "".join(line + "\n" for line in links_of(document.pages))
    pathlib.Path(pdf).with_suffix(".links").write_text(links, encoding="utf-8")


if __name__ == "__main__":
    main(*sys.argv[1:])
