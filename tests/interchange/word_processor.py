#!/usr/bin/env python3
"""Gives coloured texts to another word processor and takes them back.

Usage: word_processor.py LEXIFORM-CLI SOFFICE [TEXT]

Writes a text of its own, or TEXT, as RTF with its colours; the word processor (`soffice`, of the package
libreoffice-writer-nogui) must find the same characters in the same colours in it. Then the word processor writes the
document in each format that both know, and Lexiform must read the same characters. Ends with 1 where they differ.
"""

import html.parser
import os
import pathlib
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

OWN_TEXT = """The quick brown fox, a lazy dog and 12 hens:\tnobody minds.
Two  spaces, three   and a no-break\u00a0space; {braces} and back\\slashes.
Naïve café, “quotes” – dashes… and smiles 😀🇫🇷 e\u0301.
Русский текст и ещё немного слов.

שלום לכולם and again English.
我们在湖边种了三棵小树。 우리는 다리를 건너서 만났다.
"""
FORMATS = ("odt", "docx", "rtf", "html")
OFFICE = "{urn:oasis:names:tc:opendocument:xmlns:%s:1.0}"
TEXT, STYLE, FO = OFFICE % "text", OFFICE % "style", OFFICE % "xsl-fo-compatible"
UNCOLOURED = "#000000"


class ColouredPage(html.parser.HTMLParser):
    """The characters of the page that Lexiform writes, each with its colour."""

    def __init__(self, page):
        super().__init__()
        self.characters, self.colours, self.inside = [], [UNCOLOURED], False
        self.feed(page)

    def handle_starttag(self, tag, attributes):
        if tag == "pre":
            self.inside = True
        elif tag == "span":
            self.colours.append(dict(attributes)["style"].removeprefix("color: "))

    def handle_endtag(self, tag):
        if tag == "pre":
            self.inside = False
        elif tag == "span":
            self.colours.pop()

    def handle_data(self, data):
        if self.inside:
            self.characters += [(character, self.colours[-1]) for character in data]


def colours_of_styles(root):
    """The colour of each character style of a flat OpenDocument text."""
    found = {}
    for style in root.iter(STYLE + "style"):
        properties = style.find(STYLE + "text-properties")
        if properties is not None:
            found[style.get(STYLE + "name")] = properties.get(FO + "color", UNCOLOURED)
    return found


def coloured_characters(root):
    """The characters of a flat OpenDocument text, each with its colour."""
    styles, found = colours_of_styles(root), []

    def walk(element, colour):
        colour = styles.get(element.get(TEXT + "style-name"), colour)
        if element.tag == TEXT + "s":
            found.extend([(" ", colour)] * int(element.get(TEXT + "c", "1")))
        elif element.tag in (TEXT + "tab", TEXT + "line-break"):
            found.append(("\t" if element.tag == TEXT + "tab" else "\n", colour))
        found.extend((character, colour) for character in element.text or "")
        for child in element:
            walk(child, colour)
            found.extend((character, colour) for character in child.tail or "")

    for paragraph in root.iter(TEXT + "p"):
        walk(paragraph, UNCOLOURED)
        found.append(("\n", UNCOLOURED))
    return found


def visible(characters):
    return [pair for pair in characters if not pair[0].isspace()]


def words(text, keeps_tabs):
    """What of a text must come back: a page has neither tabs nor blank ends of lines."""
    lines = [line if keeps_tabs else " ".join(line.split()) for line in text.rstrip("\n").split("\n")]
    return "\n".join(lines if keeps_tabs else [line for line in lines if line])


class Round:
    def __init__(self, lexiform, office, folder):
        self.lexiform, self.office, self.folder, self.failures = lexiform, office, folder, 0

    def convert(self, source, kind, into="converted"):
        """The file that the word processor makes of `source`."""
        target = self.folder / into
        subprocess.run([self.office, f"-env:UserInstallation=file://{self.folder}/profile", "--headless",
                        "--convert-to", kind, "--outdir", target, source],
                       check=True, capture_output=True)
        return target / (source.stem + "." + kind.split(":")[0])

    def read(self, *arguments):
        return subprocess.run([self.lexiform, *arguments], check=True, capture_output=True).stdout.decode()

    def expect(self, what, right):
        print(("same      " if right else "DIFFERENT ") + what)
        self.failures += not right

    def give(self, source, rtf):
        text = source.read_text(encoding="utf-8")
        plain = self.convert(rtf, "txt:Text (encoded):UTF8").read_text(encoding="utf-8-sig")
        self.expect("characters in the word processor", plain.rstrip("\n") == text.rstrip("\n"))
        page = ColouredPage(self.read("tag", "--format", "html", source))
        flat = coloured_characters(ElementTree.parse(self.convert(rtf, "fodt")).getroot())
        self.expect(f"colours in the word processor ({len({c for _, c in page.characters})} of them)",
                    visible(flat) == visible(page.characters[1:]))

    def take_back(self, source, rtf):
        text = source.read_text(encoding="utf-8")
        document = self.convert(rtf, "odt")
        for kind in FORMATS:
            made = document if kind == "odt" else self.convert(document, kind, into="made")
            keeps_tabs = kind != "html"
            back = self.read("text", made)
            self.expect(f"characters from its {kind}", words(back, keeps_tabs) == words(text, keeps_tabs))


def main():
    lexiform, office = (os.path.abspath(path) if os.path.exists(path) else path for path in sys.argv[1:3])
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        source, rtf = folder / "text.txt", folder / "text.rtf"
        text = pathlib.Path(sys.argv[3]).read_text(encoding="utf-8") if len(sys.argv) > 3 else OWN_TEXT
        source.write_text(text, encoding="utf-8")
        both = Round(lexiform, office, folder)
        rtf.write_text(both.read("tag", "--format", "rtf", source), encoding="utf-8")
        both.give(source, rtf)
        both.take_back(source, rtf)
    return both.failures > 0


if __name__ == "__main__":
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    sys.exit(main())
